// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Platform/Linux/SettingsUserDefaults.h"

#include "Platform/Linux/LinuxIO.h"
#include "Platform/Variable.h"
#include "Platform/WithoutPrivileges.h"
#include "SampleHome/PlainFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

using Strings = std::optional<QStringList>;

} // namespace

class SettingsUserDefaultsTest : public ::testing::Test
{
protected:
    QString path() const { return m_folder.filePath(u"Roamlet/Roamlet.conf"_s); }

    /// The settings of a file that somebody wrote by hand.
    SettingsUserDefaults written(const QByteArray &content) const
    {
        sample::writeFile(path(), content);
        return SettingsUserDefaults(path());
    }
    SettingsUserDefaults general(const QByteArray &lines) const
    {
        return written("[General]\n" + lines + "\n");
    }

    QByteArray content() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    Strings listWrittenAndReadAgain(const QStringList &list) const
    {
        SettingsUserDefaults(path()).setStringList(u"list"_s, list);
        return SettingsUserDefaults(path()).stringList(u"list"_s);
    }

    const QString &folder() const { return m_path; }

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.path();
};

TEST_F(SettingsUserDefaultsTest, theUsersFileIsRoamletConfInTheFolderForConfigurations)
{
    const Variable config("XDG_CONFIG_HOME", QFile::encodeName(folder()));
    sample::writeFile(path(), "[General]\nshowDockIcon=false\n");
    SettingsUserDefaults defaults;
    EXPECT_EQ(defaults.boolean(u"showDockIcon"_s), std::optional(false));
    defaults.setString(u"export.format"_s, u"csv"_s);
    EXPECT_TRUE(content().contains("export.format=csv")) << content().constData();
    EXPECT_TRUE(content().contains("showDockIcon=false")) << content().constData();
}

TEST_F(SettingsUserDefaultsTest, theUsersFileLiesWhereEverythingElseIsLookedFor)
{
    const Variable home("HOME", QFile::encodeName(folder()));
    sample::writeFile(folder() % u"/.config/Roamlet/Roamlet.conf", "[General]\nexport.format=markdown\n");
    for (const std::optional<QByteArray> &value : {std::optional<QByteArray>(), std::optional(QByteArray("")),
                                                   std::optional(QByteArray("relative"))}) {
        const Variable config("XDG_CONFIG_HOME", value);
        EXPECT_EQ(SettingsUserDefaults().string(u"export.format"_s), std::optional(u"markdown"_s))
            << value.value_or("unset").constData();
    }
}

TEST_F(SettingsUserDefaultsTest, aNewFileIsForTheUserOnly)
{
    SettingsUserDefaults(path()).setBoolean(u"showDockIcon"_s, true);
    const auto others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_EQ(QFile::permissions(path()) & others, QFile::Permissions());
}

TEST_F(SettingsUserDefaultsTest, withoutAFileEverythingIsAbsent)
{
    const SettingsUserDefaults defaults(path());
    EXPECT_EQ(defaults.stringList(u"a"_s), std::nullopt);
    EXPECT_EQ(defaults.string(u"a"_s), std::nullopt);
    EXPECT_EQ(defaults.boolean(u"a"_s), std::nullopt);
    EXPECT_EQ(defaults.bytes(u"a"_s), std::nullopt);
    EXPECT_FALSE(QFile::exists(path())) << "asking writes nothing";
}

TEST_F(SettingsUserDefaultsTest, listsWrittenByHandAreRead)
{
    EXPECT_EQ(general("disabledProfiles=chrome/Profile 1, edge/Default").stringList(u"disabledProfiles"_s),
              Strings(QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(general("disabledProfiles=chrome/Profile 1,edge/Default").stringList(u"disabledProfiles"_s),
              Strings(QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(
        general("disabledProfiles = chrome/Profile 1 ,  edge/Default ").stringList(u"disabledProfiles"_s),
        Strings(QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s}));
    EXPECT_EQ(general("disabledProfiles=\"chrome/Profile 1\", \"safari\"").stringList(u"disabledProfiles"_s),
              Strings(QStringList{u"chrome/Profile 1"_s, u"safari"_s}));
    EXPECT_EQ(general("disabledProfiles=safari/Überprüfung, chrome/日本").stringList(u"disabledProfiles"_s),
              Strings(QStringList{u"safari/Überprüfung"_s, u"chrome/日本"_s}));
}

TEST_F(SettingsUserDefaultsTest, aListOfOneWrittenByHandIsAList)
{
    EXPECT_EQ(general("disabledProfiles=safari").stringList(u"disabledProfiles"_s),
              Strings(QStringList{u"safari"_s}));
    EXPECT_EQ(general("disabledProfiles=chrome/Profile 1").stringList(u"disabledProfiles"_s),
              Strings(QStringList{u"chrome/Profile 1"_s}));
}

TEST_F(SettingsUserDefaultsTest, anEmptyListWrittenByHandIsEmptyAndThere)
{
    EXPECT_EQ(general("disabledProfiles=").stringList(u"disabledProfiles"_s), Strings(QStringList()));
    EXPECT_EQ(general("disabledProfiles=@Invalid()").stringList(u"disabledProfiles"_s),
              Strings(QStringList()));
}

TEST_F(SettingsUserDefaultsTest, listsAreKept)
{
    for (const QStringList &list :
         {QStringList{u"a"_s, u"b"_s}, QStringList{u"chrome/Profile 1"_s, u"edge/Default"_s, u"safari"_s},
          QStringList{u"a"_s}, QStringList(), QStringList{u"b"_s, u"a"_s, u"b"_s},
          QStringList{u"with, comma"_s, u"with; semicolon"_s, u"with \"quotes\""_s},
          QStringList{u"with, comma"_s}, QStringList{u"@at"_s}, QStringList{u"@at"_s, u"@Invalid()"_s},
          QStringList{u" blanks "_s, u"tab\t"_s, u"line\nbreak"_s},
          QStringList{u"back\\slash"_s, u"a=b"_s, u"[x]"_s}, QStringList{u"über"_s, u"日本"_s, u"😀"_s},
          QStringList{u"%41"_s, u"#"_s, u"true"_s, u"1"_s}, QStringList{u""_s, u"x"_s},
          QStringList{u"x"_s, u""_s}, QStringList{u"true"_s}, QStringList{u"0"_s}})
        EXPECT_EQ(listWrittenAndReadAgain(list), Strings(list)) << qPrintable(list.join(u'|'));
}

TEST_F(SettingsUserDefaultsTest, aListOfManyIsKept)
{
    QStringList many;
    for (int i = 0; i < 2000; ++i)
        many.append(u"chrome/Profile %1"_s.arg(i));
    EXPECT_EQ(listWrittenAndReadAgain(many), Strings(many));
}

TEST_F(SettingsUserDefaultsTest, aListThatBecomesEmptyIsEmptyAndThere)
{
    listWrittenAndReadAgain({u"a"_s, u"b"_s});
    EXPECT_EQ(listWrittenAndReadAgain({}), Strings(QStringList()));
    EXPECT_EQ(listWrittenAndReadAgain({u"c"_s}), Strings(QStringList{u"c"_s}));
}

TEST_F(SettingsUserDefaultsTest, keysAreStoredAsTheyAreNamed)
{
    {
        SettingsUserDefaults defaults(path());
        defaults.setStringList(u"sourceOrder"_s, {u"edge/Default"_s, u"safari"_s});
        defaults.setString(u"grouping.history"_s, u"day"_s);
        defaults.setString(u"dataRoot.chrome"_s, u"/backup/Chrome"_s);
        defaults.setBoolean(u"showDockIcon"_s, true);
    }
    const QByteArray text = content();
    EXPECT_TRUE(text.startsWith("[General]\n")) << text.constData();
    EXPECT_EQ(text.count('['), 1) << text.constData();
    for (const QByteArray &line :
         {QByteArray("sourceOrder=edge/Default, safari"), QByteArray("grouping.history=day"),
          QByteArray("dataRoot.chrome=/backup/Chrome"), QByteArray("showDockIcon=true")})
        EXPECT_TRUE(text.split('\n').contains(line)) << text.constData() << "\nlacks " << line.constData();
}

TEST_F(SettingsUserDefaultsTest, textsAreKept)
{
    for (const QString &text : {u"csv"_s, u""_s, u" blanks "_s, u"a, b"_s, u"a;b"_s, u"\"q\""_s, u"@x"_s,
                                u"@@x"_s, u"@Invalid()"_s, u"@ByteArray(x)"_s, u"C:\\x"_s, u"line\nbreak"_s,
                                u"über 日本 😀"_s, u"true"_s, u"12"_s, u"%1"_s, u"a=b#c"_s}) {
        SettingsUserDefaults(path()).setString(u"text"_s, text);
        EXPECT_EQ(SettingsUserDefaults(path()).string(u"text"_s), std::optional(text)) << qPrintable(text);
    }
}

TEST_F(SettingsUserDefaultsTest, textsWrittenByHandAreRead)
{
    const SettingsUserDefaults defaults =
        general("dataRoot.chrome=/home/x/Chrome Data\ndataRoot.edge = \"/a, b\"\nexport.format=markdown");
    EXPECT_EQ(defaults.string(u"dataRoot.chrome"_s), std::optional(u"/home/x/Chrome Data"_s));
    EXPECT_EQ(defaults.string(u"dataRoot.edge"_s), std::optional(u"/a, b"_s));
    EXPECT_EQ(defaults.string(u"export.format"_s), std::optional(u"markdown"_s));
    EXPECT_EQ(defaults.string(u"dataRoot.safari"_s), std::nullopt);
}

TEST_F(SettingsUserDefaultsTest, booleansAreKept)
{
    for (const bool value : {true, false}) {
        SettingsUserDefaults(path()).setBoolean(u"b"_s, value);
        EXPECT_EQ(SettingsUserDefaults(path()).boolean(u"b"_s), std::optional(value));
    }
}

TEST_F(SettingsUserDefaultsTest, onlyTrueAndFalseAreBooleans)
{
    const SettingsUserDefaults defaults =
        general("a=true\nb=false\nc=TRUE\nd=False\ne=1\nf=yes\ng=\nh=truee\ni=true, false\nj=@Invalid()");
    EXPECT_EQ(defaults.boolean(u"a"_s), std::optional(true));
    EXPECT_EQ(defaults.boolean(u"b"_s), std::optional(false));
    EXPECT_EQ(defaults.boolean(u"c"_s), std::optional(true));
    EXPECT_EQ(defaults.boolean(u"d"_s), std::optional(false));
    for (const QString &key : {u"e"_s, u"f"_s, u"g"_s, u"h"_s, u"i"_s, u"j"_s, u"k"_s})
        EXPECT_EQ(defaults.boolean(key), std::nullopt) << qPrintable(key);
}

TEST_F(SettingsUserDefaultsTest, bytesAreKept)
{
    QByteArray all;
    for (int i = 0; i < 256; ++i)
        all.append(static_cast<char>(i));
    for (const QByteArray &bytes : {all, QByteArray(""), QByteArray("text"), QByteArray("\0", 1),
                                    QByteArray(")"), QByteArray("a, b")}) {
        SettingsUserDefaults(path()).setBytes(u"columns.history"_s, bytes);
        EXPECT_EQ(SettingsUserDefaults(path()).bytes(u"columns.history"_s), std::optional(bytes))
            << bytes.toHex().constData();
    }
}

TEST_F(SettingsUserDefaultsTest, valuesOfAnotherTypeAreAbsent)
{
    {
        SettingsUserDefaults defaults(path());
        defaults.setStringList(u"list"_s, {u"a"_s, u"b"_s});
        defaults.setBytes(u"bytes"_s, "\x01\x02");
        defaults.setString(u"text"_s, u"text"_s);
    }
    const SettingsUserDefaults defaults(path());
    EXPECT_EQ(defaults.string(u"list"_s), std::nullopt);
    EXPECT_EQ(defaults.boolean(u"list"_s), std::nullopt);
    EXPECT_EQ(defaults.bytes(u"list"_s), std::nullopt);
    EXPECT_EQ(defaults.string(u"bytes"_s), std::nullopt);
    EXPECT_EQ(defaults.stringList(u"bytes"_s), std::nullopt);
    EXPECT_EQ(defaults.boolean(u"bytes"_s), std::nullopt);
    EXPECT_EQ(defaults.boolean(u"text"_s), std::nullopt);

    const SettingsUserDefaults damaged = general("a=@Variant(\\0\\0\\0\\x2\\0\\0\\0\\x5)\nb=@Rect(1 2 3 4)");
    for (const QString &key : {u"a"_s, u"b"_s}) {
        EXPECT_EQ(damaged.string(key), std::nullopt) << qPrintable(key);
        EXPECT_EQ(damaged.stringList(key), std::nullopt) << qPrintable(key);
        EXPECT_EQ(damaged.boolean(key), std::nullopt) << qPrintable(key);
        EXPECT_EQ(damaged.bytes(key), std::nullopt) << qPrintable(key);
    }
}

TEST_F(SettingsUserDefaultsTest, keysCountByTheirCase)
{
    const SettingsUserDefaults defaults = general("SourceOrder=a, b");
    EXPECT_EQ(defaults.stringList(u"sourceOrder"_s), std::nullopt);
}

TEST_F(SettingsUserDefaultsTest, aRemovedValueIsAbsent)
{
    SettingsUserDefaults defaults = general("disabledChromeProfiles=Default, Profile 1\nshowDockIcon=true");
    defaults.remove(u"disabledChromeProfiles"_s);
    EXPECT_EQ(defaults.stringList(u"disabledChromeProfiles"_s), std::nullopt);
    EXPECT_FALSE(content().contains("disabledChromeProfiles"));
    EXPECT_EQ(SettingsUserDefaults(path()).boolean(u"showDockIcon"_s), std::optional(true));
    defaults.remove(u"missing"_s);
}

TEST_F(SettingsUserDefaultsTest, aValueIsInTheFileAtOnce)
{
    SettingsUserDefaults defaults(path());
    defaults.setStringList(u"disabledProfiles"_s, {u"safari"_s});
    EXPECT_TRUE(content().contains("disabledProfiles=safari"));
}

TEST_F(SettingsUserDefaultsTest, whatOthersWroteStays)
{
    SettingsUserDefaults defaults = written("[General]\nown=1\n\n[Other]\nkey=value\n");
    defaults.setString(u"export.format"_s, u"csv"_s);
    EXPECT_TRUE(content().contains("[Other]\nkey=value"));
    EXPECT_TRUE(content().contains("own=1"));
}

TEST_F(SettingsUserDefaultsTest, aDamagedFileHidesNothingThatIsWhole)
{
    const SettingsUserDefaults defaults = written(
        QByteArray("[General]\n\xff\xfe\x01 nonsense\nsourceOrder=a, b\n[broken\nx=") + QByteArray(5, '\0'));
    EXPECT_EQ(defaults.stringList(u"sourceOrder"_s), Strings(QStringList{u"a"_s, u"b"_s}));
}

TEST_F(SettingsUserDefaultsTest, whatIsNoFileOfSettingsIsLeftAlone)
{
    ASSERT_TRUE(QDir().mkpath(folder() % u"/Roamlet"));
    ASSERT_EQ(::mkfifo(qPrintable(path()), 0600), 0);
    {
        SettingsUserDefaults defaults(path());
        EXPECT_EQ(defaults.boolean(u"showDockIcon"_s), std::nullopt);
        defaults.setBoolean(u"showDockIcon"_s, false);
    }
    struct stat attributes = {};
    ASSERT_EQ(::stat(qPrintable(path()), &attributes), 0);
    EXPECT_TRUE(S_ISFIFO(attributes.st_mode));
    ASSERT_TRUE(QFile::remove(path()));

    const QByteArray huge = "[General]\nshowDockIcon=false\n" + QByteArray(2 << 20, '#');
    EXPECT_EQ(written(huge).boolean(u"showDockIcon"_s), std::nullopt);
    EXPECT_EQ(content(), huge);
}

TEST_F(SettingsUserDefaultsTest, aFileThatCannotBeReadNowLosesNothing)
{
    const QByteArray before = "[General]\ndisabledProfiles=chrome/Default\n";
    sample::writeFile(path(), before);
    // Whoever may write to it could put another one in its place.
    ASSERT_EQ(::chmod(qPrintable(folder()), 0777), 0);
    ASSERT_EQ(::chmod(qPrintable(folder() % u"/Roamlet"), 0777), 0);
    ASSERT_EQ(::chmod(qPrintable(path()), 0222), 0);
    {
        const WithoutPrivileges user;
        if (!user.arePermissionsChecked())
            GTEST_SKIP() << "nothing is refused to this user";
        SettingsUserDefaults defaults(path());
        defaults.setBoolean(u"showDockIcon"_s, false);
    }
    ASSERT_EQ(::chmod(qPrintable(path()), 0600), 0);
    EXPECT_EQ(content(), before);
}

TEST_F(SettingsUserDefaultsTest, aLockThatNobodyCanRemoveIsNotWaitedFor)
{
    const QByteArray before = "[General]\nshowDockIcon=true\n";
    sample::writeFile(path(), before);
    sample::writeFile(path() % u".lock/in it", "so that it is no lock of a run that died");
    ::testing::internal::CaptureStderr();
    {
        SettingsUserDefaults defaults(path());
        defaults.setBoolean(u"another"_s, true);
        defaults.remove(u"showDockIcon"_s);
        EXPECT_EQ(defaults.boolean(u"another"_s), true);
        EXPECT_EQ(defaults.boolean(u"showDockIcon"_s), std::nullopt);
    }
    const QString told = QString::fromStdString(::testing::internal::GetCapturedStderr());
    EXPECT_EQ(told.count(u"the settings cannot be saved in "_s), 1) << told.toStdString();
    EXPECT_EQ(content(), before);
}

TEST_F(SettingsUserDefaultsTest, whatTheDiskDoesNotTakeLosesNothingThatIsThere)
{
    QByteArray lines;
    for (int i = 0; i < 200; ++i)
        lines += "key" + QByteArray::number(i) + "=value\n";
    SettingsUserDefaults settings = general(lines);
    const QByteArray before = content();
    // Enough for the lock, which tells who has it, and not for the settings.
    constexpr rlim_t room = 512;
    ignoreFileSizeSignal();
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const rlimit small = {.rlim_cur = room, .rlim_max = usual.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    ::testing::internal::CaptureStderr();
    settings.setString(u"new"_s, u"choice"_s);
    const std::string said = ::testing::internal::GetCapturedStderr();
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &usual), 0);
    EXPECT_EQ(content(), before);
    EXPECT_NE(said.find("cannot be saved"), std::string::npos) << said;
    EXPECT_EQ(QDir(folder() % u"/Roamlet").entryList(QDir::Files), QStringList(u"Roamlet.conf"_s));
    // Another time it is taken.
    SettingsUserDefaults(path()).setString(u"new"_s, u"choice"_s);
    EXPECT_EQ(SettingsUserDefaults(path()).string(u"new"_s), u"choice");
    EXPECT_EQ(SettingsUserDefaults(path()).string(u"key199"_s), u"value");
}

TEST_F(SettingsUserDefaultsTest, settingsThatARunLeftHalfSavedAreThoseFromBefore)
{
    sample::writeFile(path() % u".previous", "[General]\nkey=kept\n");
    EXPECT_EQ(written("").string(u"key"_s), u"kept");
    EXPECT_EQ(content(), "[General]\nkey=kept\n");
    // Where they were saved whole, what was before them goes.
    sample::writeFile(path() % u".previous", "[General]\nkey=old\n");
    EXPECT_EQ(general("key=new").string(u"key"_s), u"new");
    EXPECT_EQ(QDir(folder() % u"/Roamlet").entryList(QDir::Files), QStringList(u"Roamlet.conf"_s));
}

TEST_F(SettingsUserDefaultsTest, whatAnotherProcessStoresIsTakenOverWhenItIsAskedFor)
{
    SettingsUserDefaults defaults = general("showInDesktopSearch=true");
    EXPECT_EQ(defaults.boolean(u"showInDesktopSearch"_s), true);
    sample::writeFile(path(), "[General]\nshowInDesktopSearch=false\ndisabledProfiles=chrome/Default\n");
    EXPECT_EQ(defaults.boolean(u"showInDesktopSearch"_s), true);
    defaults.renew();
    EXPECT_EQ(defaults.boolean(u"showInDesktopSearch"_s), false);
    EXPECT_EQ(defaults.stringList(u"disabledProfiles"_s), QStringList{u"chrome/Default"_s});
    // To look is not to write, and a file that is not there is not made.
    ASSERT_TRUE(QFile::remove(path()));
    defaults.renew();
    EXPECT_EQ(defaults.boolean(u"showInDesktopSearch"_s), std::nullopt);
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(SettingsUserDefaultsTest, whatCannotBeSavedIsToldOnce)
{
    sample::writeFile(folder() % u"/Roamlet", "a file in the place of the folder");
    SettingsUserDefaults defaults(path());
    ::testing::internal::CaptureStderr();
    defaults.setBoolean(u"showDockIcon"_s, false);
    defaults.setBoolean(u"showDockIcon"_s, true);
    const QString told = QString::fromStdString(::testing::internal::GetCapturedStderr());
    EXPECT_EQ(told.count(u"the settings cannot be saved in "_s), 1) << told.toStdString();
}

} // namespace roamlet::testing
