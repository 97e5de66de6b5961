// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/UnicodeLocale.h"

#include <QByteArray>

#include <clocale>
#include <langinfo.h>
#include <string_view>

namespace roamlet
{

// There is only one thread yet.
// NOLINTBEGIN(concurrency-mt-unsafe)
void useUnicodeLocale()
{
    setlocale(LC_ALL, "");
    if (std::string_view(nl_langinfo(CODESET)) != "UTF-8") {
        qputenv("LC_ALL", "C.UTF-8");
        setlocale(LC_ALL, "");
    }
}
// NOLINTEND(concurrency-mt-unsafe)

} // namespace roamlet
