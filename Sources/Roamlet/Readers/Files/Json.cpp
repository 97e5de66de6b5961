// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/Json.h"

#include "Model/Utf8.h"

#include <QCoreApplication>

namespace roamlet::Json
{

using namespace Qt::StringLiterals;

namespace
{

/// Why the library should not be given these bytes, whether they are JSON or not.
std::optional<QString> costOf(const QByteArray &bytes)
{
    std::size_t depth = 0;
    std::size_t values = 0;
    for (const char *place = bytes.cbegin(); place != bytes.cend(); ++place) {
        switch (*place) {
        case '"':
            // Up to the end of the string, or of what is there of it.
            while (++place != bytes.cend() && *place != '"') {
                if (*place == '\\' && ++place == bytes.cend())
                    break;
            }
            if (place == bytes.cend())
                return {};
            break;
        case '[':
        case '{':
            ++values;
            if (++depth > deepestNesting)
                return QCoreApplication::translate("roamlet::ReadError", "it is nested too deeply");
            break;
        case ']':
        case '}':
            // More of them than there were is the library's to say.
            if (depth == 0)
                return {};
            --depth;
            break;
        case ',':
            ++values;
            break;
        default:
            break;
        }
        if (values > mostValues)
            return QCoreApplication::translate("roamlet::ReadError", "it is too large");
    }
    return {};
}

} // namespace

std::expected<Value, QString> parse(const QByteArray &bytes)
{
    // The library would skip the mark; a browser never writes one, and a file that has it is not the
    // browser's.
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return std::unexpected(QCoreApplication::translate(
            "roamlet::ReadError", "not valid JSON: it begins with a byte-order mark"));
    // The library would take it for the end of the text.
    if (bytes.contains('\0'))
        return std::unexpected(
            QCoreApplication::translate("roamlet::ReadError", "not valid JSON: it holds a NUL"));
    if (const std::optional<QString> reason = costOf(bytes))
        return std::unexpected(*reason);
    try {
        return Value::parse(bytes.begin(), bytes.end());
    } catch (const Value::parse_error &error) {
        return std::unexpected(
            QCoreApplication::translate("roamlet::ReadError", "not valid JSON at byte %1").arg(error.byte));
    } catch (const Value::exception &) {
        return std::unexpected(
            QCoreApplication::translate("roamlet::ReadError", "not valid JSON: a number is out of range"));
    }
}

const Value *member(const Value &value, const char *key)
{
    if (!value.is_object())
        return nullptr;
    const auto found = value.find(key);
    return found == value.end() ? nullptr : &*found;
}

const Value *objectMember(const Value &value, const char *key)
{
    const Value *found = member(value, key);
    return found != nullptr && found->is_object() ? found : nullptr;
}

std::optional<QString> text(const Value *value)
{
    if (value == nullptr || !value->is_string())
        return {};
    return text(value->get_ref<const std::string &>());
}

QString text(const std::string &value)
{
    return utf8Text(value);
}

bool isInteger(const Value *value, std::int64_t number)
{
    return value != nullptr && value->is_number() && *value == number;
}

bool isTrue(const Value *value)
{
    return value != nullptr && value->is_boolean() && value->get<bool>();
}

} // namespace roamlet::Json
