// SPDX-FileCopyrightText: 2026 The Roamlet authors
// SPDX-License-Identifier: MIT

#include "Readers/Files/BinaryPropertyList.h"
#include "Readers/Files/PropertyList.h"
#include "Readers/Files/PropertyListTree.h"
#include "Readers/ReaderTest.h"

#include <sys/resource.h>

namespace roamlet::testing
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int deepestNesting = PropertyListTree::deepestNesting;

/// Why the bytes are refused, or nothing.
std::optional<QString> refusal(const QByteArray &bytes)
{
    const auto list = PropertyList::parse(bytes);
    return list ? std::nullopt : std::optional(list.error());
}

QByteArray plist(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + content + "</plist>";
}

QByteArray nestedXml(int depth, const QByteArray &open = "<array>", const QByteArray &close = "</array>")
{
    return plist(open.repeated(depth) + close.repeated(depth));
}

QByteArray nestedBinary(int depth)
{
    BinaryPropertyList list;
    list.nestedArrays(depth - 1, list.array({}));
    return list.finish();
}

/// A child of this process parses the bytes on a thread with the stack that the readers have: an overflow
/// would only end the child.
bool isSurvived(const QByteArray &bytes)
{
    return inAnotherProcess([&bytes] {
               onAnotherThread([&bytes] { static_cast<void>(PropertyList::parse(bytes)); });
               return 0;
           }) == 0;
}

/// Kilobytes; never falls.
long peakMemory()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

TEST(PropertyListLimits, ordinaryListsAreRead)
{
    BinaryPropertyList list;
    const int key = list.ascii("key");
    const int text = list.ascii("shared");
    QList<int> dictionaries;
    for (int i = 0; i < 1000; ++i)
        dictionaries.append(list.dictionary({{key, text}}));
    list.array(dictionaries);
    EXPECT_EQ(refusal(list.finish()), std::nullopt);
    EXPECT_EQ(refusal(plist("<dict><key>a</key><array><string>b</string></array></dict>")), std::nullopt);
}

TEST(PropertyListLimits, theDeepestNestingIsReadAndSurvived)
{
    for (const QByteArray &bytes : {nestedBinary(deepestNesting), nestedXml(deepestNesting),
                                    plist(QByteArray("<dict><key>a</key>").repeated(deepestNesting) +
                                          QByteArray("</dict>").repeated(deepestNesting))}) {
        EXPECT_EQ(refusal(bytes), std::nullopt);
        EXPECT_TRUE(isSurvived(bytes));
    }
    // What has no elements adds no level.
    BinaryPropertyList list;
    list.nestedArrays(deepestNesting, list.ascii("text"));
    EXPECT_EQ(refusal(list.finish()), std::nullopt);
    EXPECT_EQ(refusal(nestedXml(deepestNesting, "<array><string>text</string>")), std::nullopt);
}

TEST(PropertyListLimits, whatIsNestedDeeperIsRefused)
{
    const auto tooDeep = std::optional(u"it is nested too deeply"_s);
    for (const int depth : {deepestNesting + 1, 200'000, 1'000'000}) {
        EXPECT_EQ(refusal(nestedBinary(depth)), tooDeep) << depth;
        EXPECT_EQ(refusal(nestedXml(depth)), tooDeep) << depth;
        EXPECT_EQ(refusal(nestedXml(depth, "<dict><key>a</key>", "</dict>")), tooDeep) << depth;
        // Never closed, with white space or an attribute in the tag.
        EXPECT_EQ(refusal(QByteArray("<array>").repeated(depth)), tooDeep) << depth;
        EXPECT_EQ(refusal(QByteArray("<array a='b'>").repeated(depth)), tooDeep) << depth;
        EXPECT_EQ(refusal(QByteArray("<dict\n><key>a</key>").repeated(depth)), tooDeep) << depth;
    }
}

TEST(PropertyListLimits, aSharedValueIsAsDeepAsTheDeepestThatRefersToIt)
{
    // Seen first near the top, where it would pass.
    BinaryPropertyList list;
    const int shared = list.nestedArrays(deepestNesting / 2, list.array({}));
    const int deep = list.nestedArrays(deepestNesting / 2, shared);
    list.array({shared, deep});
    EXPECT_EQ(refusal(list.finish()), u"it is nested too deeply"_s);
}

TEST(PropertyListLimits, manyEmptyFoldersBesideEachOtherAreNotDeep)
{
    const int count = 5 * deepestNesting;
    for (const char *folder :
         {"<array/>", "<array />", "<dict/>", "<array></array>", "<dict><key>a</key><array/></dict>"}) {
        const QByteArray bytes = plist("<array>" + QByteArray(folder).repeated(count) + "</array>");
        EXPECT_EQ(refusal(bytes), std::nullopt) << folder;
    }
}

TEST(PropertyListLimits, noTagCountsThatIsNone)
{
    // What looks like closing tags here is none: all of these nest 200,000 deep.
    constexpr int depth = 200'000;
    for (const char *open : {"<array><!--</array>-->", "<array><!-- > </array> -->", "<array a=\"</array>\">",
                             "<array a='</array>'>", "<array><?x </array>?>", "<array><!--></array>-->",
                             "<array><!---></array>-->", "<array><!DOCTYPE \">\" \"</array>\">",
                             "<array><!DOCTYPE a [\"]>\" </array>]>", "<array><!DOCTYPE </array>>",
                             "<dict><key><![CDATA[</dict>]]></key>", "<dict><key>a<!--</dict>--></key>"}) {
        const QByteArray bytes = QByteArray("<plist>") + QByteArray(open).repeated(depth);
        EXPECT_TRUE(isSurvived(bytes)) << open;
        const QByteArray close = QByteArray(open).startsWith("<array") ? "</array>" : "</dict>";
        EXPECT_TRUE(refusal(bytes + close.repeated(depth) + "</plist>").has_value()) << open;
    }
    // This one is: a quote is no part of an instruction's end.
    EXPECT_EQ(refusal("<plist><array><?x \"?></array>\"?></plist>"), std::nullopt);
}

TEST(PropertyListLimits, aDocumentTypeHidesNoMoreThanItself)
{
    constexpr int depth = 200'000;
    const QByteArray nested = QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth);
    for (const char *type :
         {"<!DOCTYPE \"[\">", "<!DOCTYPE a \"b[c\">", "<!DOCTYPE>", "<!DOCTYPE [<!ELEMENT a>]>",
          "<!DOCTYPE a SYSTEM \"[\">", "<!DOCTYPE a [<!ELEMENT a ANY>]>"}) {
        const QByteArray bytes = type + QByteArray("<plist>") + nested + "</plist><!-- ]> -->";
        EXPECT_TRUE(refusal(bytes).has_value()) << type;
        EXPECT_TRUE(isSurvived(bytes)) << type;
    }
    for (const char *type : {"<!DOCTYPE a [<!ELEMENT dict ANY>]>", "<!DOCTYPE a SYSTEM \"[\">"})
        EXPECT_EQ(refusal(QByteArray(type) + "<plist><string/></plist>"), std::nullopt) << type;
}

TEST(PropertyListLimits, aDocumentTypeThatDeclaresMoreThanElementsIsRefused)
{
    for (const char *declaration :
         {"<!ENTITY a \"b\">", "<!ENTITY % a \"b\">", "<!ENTITY a SYSTEM \"file:///etc/passwd\">",
          "<!ATTLIST string a CDATA \"b\">"}) {
        const QByteArray bytes = QByteArray("<!DOCTYPE a [") + declaration + "]><plist><string/></plist>";
        EXPECT_TRUE(refusal(bytes).has_value()) << declaration;
    }
}

TEST(PropertyListLimits, theTimeGrowsWithTheSize)
{
    // Were what follows looked at again and again, this would take minutes.
    for (const char *piece : {"<!DOCTYPE>", "<!DOCTYPE a>", "<!DOCTYPE [", "<!--", "<!---->", "<?", "<?a?>",
                              "<\"", "<", "<a \"", "<![CDATA[", "&amp;", "&#1;", "&a;"}) {
        EXPECT_TRUE(refusal(QByteArray(piece).repeated(300'000)).has_value()) << piece;
        EXPECT_TRUE(refusal("<plist><string>" + QByteArray(piece).repeated(300'000)).has_value()) << piece;
        EXPECT_TRUE(refusal("<!DOCTYPE a [" + QByteArray(piece).repeated(300'000)).has_value()) << piece;
    }
    QByteArray tag = "<plist><array";
    for (int i = 0; i < 300'000; ++i)
        tag += " a" + QByteArray::number(i) + "='>'";
    EXPECT_TRUE(refusal(tag + "></array></plist>").has_value());
    // Two bytes for each element, and every one within all the others.
    BinaryPropertyList list(2);
    const int key = list.ascii("a");
    int object = list.array({});
    for (int i = 0; i < deepestNesting - 1; ++i)
        object = list.dictionary({{key, object}, {key, key}});
    EXPECT_EQ(refusal(list.finish()), std::nullopt);
}

TEST(PropertyListLimits, aListMayConsistOfReferences)
{
    BinaryPropertyList list;
    const int number = list.integer(1);
    list.nestedArrays(500, list.array(QList<int>(100'000, number)));
    EXPECT_EQ(refusal(list.finish()), std::nullopt);
}

TEST(PropertyListLimits, aWideListFarInsideIsRead)
{
    // Were each value compared with all that are around it, this would take minutes.
    BinaryPropertyList list;
    const int number = list.integer(1);
    list.nestedArrays(deepestNesting - 1, list.array(QList<int>(1'000'000, number)));
    EXPECT_EQ(refusal(list.finish()), std::nullopt);
}

TEST(PropertyListLimits, tagsInTextsDoNotCount)
{
    const QByteArray text = QByteArray("<dict>").repeated(2LL * deepestNesting);
    EXPECT_EQ(refusal(plist("<string><![CDATA[" + text + "]]></string>")), std::nullopt);
    EXPECT_EQ(refusal(plist("<!--" + text + "--><string/>")), std::nullopt);
}

TEST(PropertyListLimits, aValueThatContainsItselfIsRefused)
{
    BinaryPropertyList itself;
    itself.array({0});
    EXPECT_TRUE(refusal(itself.finish()).has_value());

    BinaryPropertyList eachOther;
    eachOther.array({1});
    eachOther.array({0});
    EXPECT_TRUE(refusal(eachOther.finish(0)).has_value());

    BinaryPropertyList throughADictionary;
    const int key = throughADictionary.ascii("Children");
    throughADictionary.dictionary({{key, 2}});
    throughADictionary.array({1});
    EXPECT_TRUE(refusal(throughADictionary.finish(1)).has_value());

    BinaryPropertyList asItsOwnKey;
    asItsOwnKey.dictionary({{0, 0}});
    EXPECT_TRUE(refusal(asItsOwnKey.finish()).has_value());
}

TEST(PropertyListLimits, aListThatUnfoldsWithoutEndIsRefused)
{
    // Each array holds the one before it twice: a few hundred bytes stand for 2^60 objects.
    BinaryPropertyList list;
    int object = list.array({});
    for (int i = 0; i < 60; ++i)
        object = list.array({object, object});
    EXPECT_TRUE(refusal(list.finish()).has_value());
    EXPECT_TRUE(isSurvived(list.finish()));

    BinaryPropertyList dictionaries;
    const int key = dictionaries.ascii("a");
    const int otherKey = dictionaries.ascii("b");
    object = dictionaries.dictionary({});
    for (int i = 0; i < 60; ++i)
        object = dictionaries.dictionary({{key, object}, {otherKey, object}});
    EXPECT_TRUE(refusal(dictionaries.finish()).has_value());
}

TEST(PropertyListLimits, aLongTextIsNotSharedWithoutEnd)
{
    // Every element is a megabyte, and the file has hardly more.
    BinaryPropertyList list;
    const int text = list.ascii(QByteArray(1'000'000, 'x'));
    list.array(QList<int>(1'000, text));
    EXPECT_EQ(refusal(list.finish()), u"not a property list: it unfolds to more than it holds"_s);

    BinaryPropertyList bookmarks;
    const int title = bookmarks.ascii(QByteArray(1'000, 'x'));
    bookmarks.array(QList<int>(100, title));
    EXPECT_EQ(refusal(bookmarks.finish()), std::nullopt);
}

TEST(PropertyListLimits, textsThatOverlapCostNoMoreMemoryThanTheyShould)
{
    // Each of 200 texts claims all that follows.
    BinaryPropertyList list;
    QList<int> texts;
    for (int i = 0; i < 200; ++i)
        texts.append(list.raw(QByteArray("\x5F\x12\x00\x0F\x42\x40", 6)));
    list.raw(QByteArray(1'000'000, 'x'));
    const QByteArray bytes = (list.array(texts), list.finish());
    const long before = peakMemory();
    EXPECT_TRUE(refusal(bytes).has_value());
    EXPECT_LT(peakMemory() - before, 20 * bytes.size() / 1024);
}

TEST(PropertyListLimits, objectsThatOverlapCostNoMoreMemoryThanTheyShould)
{
    // Each of 250 arrays claims all that follows as its references, of which every byte is a valid one.
    constexpr int claimed = 200'000;
    BinaryPropertyList list(1);
    for (int i = 0; i < 250; ++i)
        list.raw(QByteArray("\xAF\x12\x00\x03\x0D\x40", 6) + static_cast<char>(i + 1));
    const QByteArray filler(2 * claimed + 10'000, '\xFF');
    list.raw(filler);
    for (int i = 251; i < 256; ++i)
        list.array({});
    const QByteArray bytes = list.finish(0);
    const long before = peakMemory();
    EXPECT_TRUE(refusal(bytes).has_value());
    // A hundred times the file is more than enough.
    EXPECT_LT(peakMemory() - before, 100 * bytes.size() / 1024);
}

TEST(PropertyListLimits, aDamagedTableIsRefused)
{
    BinaryPropertyList list;
    list.array({list.ascii("text")});
    const QByteArray good = list.finish();
    ASSERT_EQ(refusal(good), std::nullopt);
    const qsizetype trailer = good.size() - 32;
    const auto with = [&good, trailer](qsizetype offset, const QByteArray &bytes) {
        return QByteArray(good).replace(trailer + offset, bytes.size(), bytes);
    };
    const QByteArray huge("\x1F\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 8);
    const QByteArray all(8, '\xFF');
    const QByteArray none(8, '\0');
    for (const char width : {'\0', '\x09', '\x10', '\x7F'}) {
        EXPECT_TRUE(refusal(with(6, QByteArray(1, width))).has_value());
        EXPECT_TRUE(refusal(with(7, QByteArray(1, width))).has_value());
    }
    for (const QByteArray &number : {huge, all}) {
        EXPECT_TRUE(refusal(with(8, number)).has_value());
        EXPECT_TRUE(refusal(with(16, number)).has_value());
        EXPECT_TRUE(refusal(with(24, number)).has_value());
    }
    EXPECT_TRUE(refusal(with(8, none)).has_value());
    EXPECT_TRUE(refusal(with(24, none)).has_value());
    for (qsizetype length = 8; length < good.size(); ++length)
        EXPECT_TRUE(refusal(good.first(length)).has_value()) << length;
}

TEST(PropertyListLimits, referencesThatLeadOutOfTheFileAreRefused)
{
    BinaryPropertyList unknownObject;
    unknownObject.array({7});
    EXPECT_TRUE(refusal(unknownObject.finish()).has_value());

    for (const QByteArray &array : {QByteArray("\xA9", 1), QByteArray("\xAF", 1), QByteArray("\xAF\x13", 2),
                                    QByteArray("\xAF\x10\xFF", 3), QByteArray("\xAF\x12\xFF\xFF\xFF\xFF", 6),
                                    QByteArray("\xAF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 10),
                                    QByteArray("\xDF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 10),
                                    QByteArray("\xD1", 1), QByteArray("\xC1", 1)}) {
        BinaryPropertyList list;
        list.raw(array);
        EXPECT_TRUE(refusal(list.finish()).has_value()) << array.toHex().constData();
    }
}

} // namespace roamlet::testing
