// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

// What libFuzzer calls: the one target that ROAMLET_FUZZ_TARGET names.

#include "Kit/DatabaseMutator.h"
#include "Kit/Target.h"
#include "SampleHome/PlainFiles.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// NOLINTBEGIN(readability-identifier-naming)
extern "C" {
std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);
int LLVMFuzzerInitialize(int *argc, char ***argv);
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                    unsigned int seed);
}
// NOLINTEND(readability-identifier-naming)

namespace
{

using namespace roamlet;
using fuzz::Target;

const Target *attacked = nullptr;

QByteArrayView view(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}

/// A line for each target: its name, its dictionary or "-", and its longest input.
void list()
{
    for (const Target &target : fuzz::allTargets())
        std::printf("%s %s %d\n", target.name, *target.dictionary != '\0' ? target.dictionary : "-",
                    target.longest);
}

/// The honest inputs of each target in a folder of its name, each under the name that libFuzzer would give
/// it.
void writeSeeds(const QString &folder)
{
    for (const Target &target : fuzz::allTargets()) {
        for (const QByteArray &seed : target.seeds()) {
            const QByteArray name = QCryptographicHash::hash(seed, QCryptographicHash::Sha1).toHex();
            sample::writeFile(
                folder % u'/' % QString::fromLatin1(target.name) % u'/' % QString::fromLatin1(name), seed);
        }
    }
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("LC_ALL", "C.UTF-8");
    // Words of warning about foreign bytes, a million times.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg) {
            std::fprintf(stderr, "%s\n", qPrintable(text));
            std::abort();
        }
    });
    static const QCoreApplication application(*argc, *argv);
    if (*argc > 1 && std::strcmp((*argv)[1], "--list") == 0) {
        list();
        std::exit(EXIT_SUCCESS);
    }
    if (*argc > 2 && std::strcmp((*argv)[1], "--seeds") == 0) {
        writeSeeds(QFile::decodeName((*argv)[2]));
        std::exit(EXIT_SUCCESS);
    }
    const QByteArray name = qgetenv("ROAMLET_FUZZ_TARGET");
    for (const Target &target : fuzz::allTargets()) {
        if (name == target.name)
            attacked = &target;
    }
    if (attacked == nullptr) {
        std::fprintf(stderr, "ROAMLET_FUZZ_TARGET names none of these:\n");
        list();
        std::exit(EXIT_FAILURE);
    }
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    attacked->attack(view(data, size));
    return 0;
}

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                    unsigned int seed)
{
    if (attacked->input != Target::Input::Database)
        return LLVMFuzzerMutate(data, size, maxSize);
    const QByteArray mutated =
        fuzz::mutatedDatabase(view(data, size), static_cast<qsizetype>(maxSize), seed,
                              [](char *bytes, qsizetype length, qsizetype most) {
                                  return static_cast<qsizetype>(LLVMFuzzerMutate(
                                      reinterpret_cast<std::uint8_t *>(bytes),
                                      static_cast<std::size_t>(length), static_cast<std::size_t>(most)));
                              });
    std::memcpy(data, mutated.constData(), static_cast<std::size_t>(mutated.size()));
    return static_cast<std::size_t>(mutated.size());
}
