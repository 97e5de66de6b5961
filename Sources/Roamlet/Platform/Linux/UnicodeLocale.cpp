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
    if (std::string_view(nl_langinfo(CODESET)) == "UTF-8")
        return;
    // Only the encoding changes: the language stays what the variables say, also where the system has no such
    // locale.
    if (const QByteArray all = qgetenv("LC_ALL"); !all.isEmpty()) {
        qputenv("LANG", all);
        qunsetenv("LC_ALL");
    }
    qputenv("LC_CTYPE", "C.UTF-8");
    setlocale(LC_CTYPE, "C.UTF-8");
}
// NOLINTEND(concurrency-mt-unsafe)

} // namespace roamlet
