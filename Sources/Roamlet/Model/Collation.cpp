// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Model/Collation.h"

#include <unicode/ucol.h>

#include <mutex>
#include <utility>

namespace roamlet
{

/// The library's collator, opened when the first names are compared: its data takes a while to read and more
/// memory than most lists.
struct Collation::Native {
    explicit Native(QByteArray locale) : m_locale(std::move(locale)) {}

    /// Nothing when the library's data is missing: plain code order is better than no list at all.
    const UCollator *collator()
    {
        std::call_once(m_isOpened, [this] { open(); });
        return m_collator.get();
    }

private:
    struct Close {
        void operator()(UCollator *collator) const { ucol_close(collator); }
    };

    void open()
    {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<UCollator, Close> collator(ucol_open(m_locale.constData(), &status));
        if (U_FAILURE(status) != 0)
            return;
        ucol_setAttribute(collator.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &status);
        // Some languages have it the other way round.
        ucol_setAttribute(collator.get(), UCOL_CASE_FIRST, UCOL_LOWER_FIRST, &status);
        m_collator = std::move(collator);
    }

    QByteArray m_locale;
    std::once_flag m_isOpened;
    std::unique_ptr<UCollator, Close> m_collator;
};

Collation::Collation(const QString &locale)
    : m_native(std::make_unique<Native>(locale == u"C" || locale == u"POSIX" || locale.startsWith(u"C.") ||
                                                locale.startsWith(u"en_US_POSIX")
                                            ? QByteArray("root")
                                            : locale.toLatin1()))
{
}

Collation::~Collation() = default;
Collation::Collation(Collation &&) noexcept = default;
Collation &Collation::operator=(Collation &&) noexcept = default;

int Collation::compare(QStringView left, QStringView right) const
{
    const UCollator *collator = m_native->collator();
    if (collator == nullptr)
        return left.compare(right);
    return ucol_strcoll(collator, left.utf16(), static_cast<int32_t>(left.size()), right.utf16(),
                        static_cast<int32_t>(right.size()));
}

void Collation::appendSortKey(QStringView text, std::vector<char> &keys) const
{
    const UCollator *collator = m_native->collator();
    if (collator == nullptr) {
        for (const QChar c : text) {
            // Seven bits a byte, so that none is zero.
            for (const int shift : {14, 7, 0})
                keys.push_back(static_cast<char>(0x80 | ((c.unicode() >> shift) & 0x7f)));
        }
        keys.push_back('\0');
        return;
    }
    const std::size_t begin = keys.size();
    const auto write = [&](std::size_t capacity) {
        keys.resize(begin + capacity);
        return static_cast<std::size_t>(
            ucol_getSortKey(collator, text.utf16(), static_cast<int32_t>(text.size()),
                            reinterpret_cast<uint8_t *>(&keys[begin]), static_cast<int32_t>(capacity)));
    };
    const std::size_t capacity = (2 * static_cast<std::size_t>(text.size())) + 32;
    const std::size_t needed = write(capacity);
    if (needed > capacity)
        write(needed);
    keys.resize(begin + needed);
}

} // namespace roamlet
