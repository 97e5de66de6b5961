// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SettingsUserDefaults.h"

#include "Platform/Linux/ConfigHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace roamlet
{

using namespace Qt::StringLiterals;

SettingsUserDefaults::SettingsUserDefaults() : SettingsUserDefaults(configHome() % u"/Roamlet/Roamlet.conf")
{
}

namespace
{

/// QSettings takes a file that it could not read for an empty one, and would put the next choice in the place
/// of all others.
bool canBeRead(const QString &path)
{
    QFile file(path);
    if (file.size() == 0 || !QSettings(path, QSettings::IniFormat).allKeys().isEmpty())
        return true;
    // A file without a single value has nothing to lose.
    return file.open(QFile::ReadOnly) && !file.readAll().contains('=') && file.error() == QFile::NoError;
}

/// A place where no file can be, beside one that is there.
QString nowhere(const QString &path)
{
    return path % u"/none";
}

/// The file, or where it cannot be one of ours, a place where none can be: then the settings are those of a
/// first start and are forgotten at the end. A pipe would never end, and a huge file take long.
QString usable(const QString &path)
{
    constexpr qint64 largest = qint64{1} << 20;
    const QFileInfo file(path);
    if (!file.exists() || file.isDir())
        return path;
    if (!file.isFile() || file.size() > largest) {
        qWarning("roamlet: %s is no file of settings and is left alone", qPrintable(path));
        return nowhere(path);
    }
    if (!canBeRead(path)) {
        qWarning("roamlet: %s cannot be read and is left alone", qPrintable(path));
        return nowhere(path);
    }
    return path;
}

/// Only this file: another program's or the system's settings are not ours.
std::unique_ptr<QSettings> opened(const QString &path)
{
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setFallbacksEnabled(false);
    return settings;
}

/// Whether QSettings will come by the lock without which it writes nothing. It would wait for ever for one
/// that nobody can remove, such as its own from the time before.
bool canBeLocked(const QString &path)
{
    constexpr int patience = 500;
    const QString name = path % u".lock";
    QLockFile lock(name);
    // Any other refusal is one for QSettings, too, and at once.
    if (!lock.tryLock(patience))
        return lock.error() != QLockFile::LockFailedError;
    lock.unlock();
    return !QFileInfo::exists(name);
}

/// Keeps what a file holds while another is put in its place. Without a second name for it, as on some file
/// systems, it does nothing.
class PreviousFile final
{
public:
    explicit PreviousFile(const QString &path)
        : m_path(QFile::encodeName(QFileInfo(path).canonicalFilePath())), m_kept(m_path + ".previous")
    {
        m_isKept = !m_path.isEmpty() && ::link(m_path.constData(), m_kept.constData()) == 0;
    }
    PreviousFile(const PreviousFile &) = delete;
    PreviousFile &operator=(const PreviousFile &) = delete;
    ~PreviousFile()
    {
        if (m_isKept)
            ::unlink(m_kept.constData());
    }

    void bringBack()
    {
        if (m_isKept && ::rename(m_kept.constData(), m_path.constData()) == 0)
            m_isKept = false;
    }

    /// What was kept by a run that was killed meanwhile: it is the settings where their file is empty.
    static void recover(const QString &path)
    {
        const QString file = QFileInfo(path).canonicalFilePath();
        const QByteArray kept = QFile::encodeName(file % u".previous");
        if (file.isEmpty() || !QFileInfo::exists(QFile::decodeName(kept)))
            return;
        if (QFileInfo(file).size() == 0)
            ::rename(kept.constData(), QFile::encodeName(file).constData());
        else
            ::unlink(kept.constData());
    }

private:
    QByteArray m_path;
    QByteArray m_kept;
    bool m_isKept = false;
};

/// Whether the file holds all of these values. Under its own name QSettings would answer from memory.
bool holds(const QString &path, const QSettings &values)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return false;
    const auto written = opened(u"/proc/self/fd/%1"_s.arg(file.handle()));
    // What is no list stands in the file as a text, and an empty list as an invalid value.
    const auto texts = [](const QVariant &value) {
        return !value.isValid() || value.canConvert<QStringList>() ? value.toStringList()
                                                                   : QStringList(value.toString());
    };
    const QStringList keys = values.allKeys();
    return std::ranges::all_of(keys, [&](const QString &key) {
        return written->contains(key) && (written->value(key) == values.value(key) ||
                                          texts(written->value(key)) == texts(values.value(key)));
    });
}

QString recovered(const QString &path)
{
    PreviousFile::recover(path);
    return path;
}

} // namespace

SettingsUserDefaults::SettingsUserDefaults(const QString &path)
    : m_settings(opened(usable(recovered(path)))), m_isSaved(m_settings->fileName() == path)
{
}

std::optional<QStringList> SettingsUserDefaults::stringList(const QString &key) const
{
    if (!m_settings->contains(key))
        return {};
    const QVariant value = m_settings->value(key);
    // The file keeps a list of one as a plain text and an empty list as an invalid value.
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QStringList();
    case QMetaType::QString:
        return value.toString().isEmpty() ? QStringList() : QStringList(value.toString());
    case QMetaType::QStringList:
        return value.toStringList();
    default:
        return {};
    }
}

std::optional<QString> SettingsUserDefaults::string(const QString &key) const
{
    const QVariant value = m_settings->value(key);
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    return {};
}

std::optional<bool> SettingsUserDefaults::boolean(const QString &key) const
{
    const QVariant value = m_settings->value(key);
    const QString text = value.toString().toLower();
    if (value.typeId() == QMetaType::Bool || text == u"true" || text == u"false")
        return value.toBool();
    return {};
}

std::optional<QByteArray> SettingsUserDefaults::bytes(const QString &key) const
{
    const QVariant value = m_settings->value(key);
    if (value.typeId() == QMetaType::QByteArray || value.typeId() == QMetaType::QString)
        return value.toByteArray();
    return {};
}

void SettingsUserDefaults::setStringList(const QString &key, const QStringList &value)
{
    set(key, value);
}

void SettingsUserDefaults::setString(const QString &key, const QString &value)
{
    set(key, value);
}

void SettingsUserDefaults::setBoolean(const QString &key, bool value)
{
    set(key, value);
}

void SettingsUserDefaults::setBytes(const QString &key, const QByteArray &value)
{
    set(key, value);
}

void SettingsUserDefaults::remove(const QString &key)
{
    prepareSaving();
    m_settings->remove(key);
    save();
}

void SettingsUserDefaults::set(const QString &key, const QVariant &value)
{
    // A file that is named outright would be made for everybody to read. One that is there keeps its mode.
    if (QFile file(m_settings->fileName()); !file.exists() && QDir().mkpath(QFileInfo(file).path()))
        static_cast<void>(file.open(QFile::WriteOnly | QFile::NewOnly, QFile::ReadOwner | QFile::WriteOwner));
    prepareSaving();
    m_settings->setValue(key, value);
    // A choice of the user's must survive a crash a moment later.
    save();
}

void SettingsUserDefaults::prepareSaving()
{
    const QString path = m_settings->fileName();
    if (!m_isSaved || canBeLocked(path))
        return;
    complain();
    // Whatever has changed would be written at the end at the latest: from now on it is forgotten instead.
    auto forgotten = opened(nowhere(path));
    for (const QString &key : m_settings->allKeys())
        forgotten->setValue(key, m_settings->value(key));
    m_settings = std::move(forgotten);
}

void SettingsUserDefaults::save()
{
    const QString path = m_settings->fileName();
    PreviousFile previous(path);
    m_settings->sync();
    if (m_settings->status() != QSettings::NoError) {
        complain();
    } else if (m_isSaved && !holds(path, *m_settings)) {
        // Qt puts the new file in the place of the old one also where the disk did not take its last bytes.
        previous.bringBack();
        complain();
    }
}

void SettingsUserDefaults::complain()
{
    if (std::exchange(m_isSaved, false))
        qWarning("roamlet: the settings cannot be saved in %s", qPrintable(m_settings->fileName()));
}

} // namespace roamlet
