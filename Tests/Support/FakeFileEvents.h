// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Platform/FileEvents.h"

#include <QStringList>

#include <utility>

namespace roamlet::testing
{

/// Reports what a test tells it to.
class FakeFileEvents final : public FileEvents
{
public:
    std::unique_ptr<Stream> open(const QStringList &folders, Handler handler) override
    {
        watchedFolders += folders;
        if (!isAvailable)
            return nullptr;
        m_handler = std::move(handler);
        return std::make_unique<TestStream>(*this);
    }

    /// Hands these paths to whoever opened the last stream.
    void report(const QStringList &paths) const
    {
        // Who gets the report may open another stream.
        const Handler handler = m_handler;
        if (handler)
            handler(paths);
    }

    /// Whether the system offers file events at all.
    bool isAvailable = true;
    /// The folders that were asked for.
    QStringList watchedFolders;
    /// What the streams say of themselves.
    QStringList silentFolders;
    bool isLimitReached = false;

private:
    class TestStream final : public Stream
    {
    public:
        explicit TestStream(const FakeFileEvents &events) : m_events(events) {}

        QStringList silentFolders() const override { return m_events.silentFolders; }
        bool isLimitReached() const override { return m_events.isLimitReached; }

    private:
        const FakeFileEvents &m_events;
    };

    Handler m_handler;
};

} // namespace roamlet::testing
