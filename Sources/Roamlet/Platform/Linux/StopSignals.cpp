// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/StopSignals.h"

#include "Platform/Linux/LinuxIO.h"

#include <signal.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <system_error>
#include <unistd.h>

#include <array>
#include <cstdint>

namespace roamlet
{

namespace
{

/// Without the ones that whoever started the program told it to ignore, as nohup does.
sigset_t stopSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction action = {};
        if (sigaction(number, nullptr, &action) == 0 && action.sa_handler != SIG_IGN)
            sigaddset(&signals, number);
    }
    return signals;
}

} // namespace

StopSignals::StopSignals()
{
    // Every thread that starts later inherits the mask, so only the listener ever sees these signals.
    const sigset_t signals = stopSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    m_signals = signalfd(-1, &signals, SFD_CLOEXEC);
    m_wake = eventfd(0, EFD_CLOEXEC);
    try {
        if (m_signals >= 0 && m_wake >= 0)
            m_listener = std::jthread([this](const std::stop_token &end) { listen(end); });
    } catch (const std::system_error &) {
        // There is no thread for it.
    }
    // With nobody to listen, they end the process at once.
    if (!m_listener.joinable())
        pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

StopSignals::~StopSignals()
{
    if (m_listener.joinable()) {
        m_listener.request_stop();
        eventfd_write(m_wake, 1);
        m_listener.join();
    }
    close(m_wake);
    close(m_signals);
    const sigset_t signals = stopSignals();
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

void StopSignals::listen(const std::stop_token &end)
{
    std::array<pollfd, 2> sources{pollfd{m_signals, POLLIN, 0}, pollfd{m_wake, POLLIN, 0}};
    while (!waitFor(sources)) {
        if (end.stop_requested())
            return;
    }
    signalfd_siginfo signal = {};
    if ((sources[0].revents & POLLIN) == 0 || read(m_signals, &signal, sizeof(signal)) != sizeof(signal))
        return;
    m_received = static_cast<int>(signal.ssi_signo);
    m_stop.request_stop();
}

void StopSignals::endProcessIfAsked()
{
    const int number = m_received;
    if (number == 0)
        return;
    signal(number, SIG_DFL);
    raise(number);
    // It is still blocked; letting it through ends the process.
    const sigset_t signals = stopSignals();
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

} // namespace roamlet
