#include "ComponentDatabase/Reading/SqlComponentDatabase.h"
#include "ComponentDatabase/Search/FoldedWords.h"
#include "ComponentDatabase/Search/Pinyin.h"
#include "ComponentDatabase/SmallDatabase.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace componentdatabase;

namespace {

SmallComponent Made(const char* code, const char* chinese, const char* english, const char* type = "DN50")
{
    return {QString::fromUtf8(code), {QString::fromUtf8(chinese), QString::fromUtf8(english)},
        {{QString::fromUtf8(type), {{MaterialProperty, QStringLiteral("BRASS")}}}}};
}

class Search : public testing::Test
{
protected:
    void Write(const std::vector<SmallComponent>& components)
    {
        WriteSmallDatabase(m_folder.Path(QStringLiteral("data.db")), components);
        DatabaseReason reason;
        m_database = SqlComponentDatabase::Open(m_folder.Path(QStringLiteral("data.db")), reason);
        ASSERT_NE(m_database, nullptr) << reason.english.toStdString();
    }

    QStringList Codes(const QString& text, int most = 100) const
    {
        DatabaseReason reason;
        QStringList codes;
        for (const SearchHit& hit : m_database->Search(text, most, reason).hits) {
            codes += hit.code;
        }
        EXPECT_EQ(reason.english, QString());
        return codes;
    }

    QStringList Codes(const char* text) const { return Codes(QString::fromUtf8(text)); }

    TestFolder m_folder;
    std::unique_ptr<SqlComponentDatabase> m_database;
};

TEST_F(Search, RanksCodeThenBeginningThenNameThenSoundThenValue)
{
    Write({Made("A-1", "铜制品", "Thing", "水泵"), Made("A-2", "不锈钢水泵", "Stainless pump"),
        Made("A-3", "水泵", "Pump"), Made("水泵", "其他", "Other")});
    EXPECT_EQ(Codes("水泵"),
        (QStringList{QStringLiteral("水泵"), QStringLiteral("A-3"), QStringLiteral("A-2"), QStringLiteral("A-1")}));
    EXPECT_EQ(Codes("shuibeng"), (QStringList{QStringLiteral("A-2"), QStringLiteral("A-3")}));
    EXPECT_EQ(Codes("sb"), (QStringList{QStringLiteral("A-2"), QStringLiteral("A-3")}));
    EXPECT_EQ(Codes("pump"), (QStringList{QStringLiteral("A-3"), QStringLiteral("A-2")}));
    EXPECT_EQ(Codes("ＤＮ５０").size(), 3);
    EXPECT_EQ(Codes("黄铜").size(), 4);
    EXPECT_EQ(Codes("brass PUMP"), (QStringList{QStringLiteral("A-2"), QStringLiteral("A-3")}));
}

TEST_F(Search, TakesWordsThatEndInADigitAsWholeExceptInCodes)
{
    Write({Made("C107-001", "阀", "Valve", "DN5"), Made("C1-2", "阀", "Valve", "DN50")});
    EXPECT_EQ(Codes("DN5"), QStringList{QStringLiteral("C107-001")});
    EXPECT_EQ(Codes("C1"), (QStringList{QStringLiteral("C107-001"), QStringLiteral("C1-2")}));
    EXPECT_EQ(Codes("C107-0"), QStringList{QStringLiteral("C107-001")});
}

TEST_F(Search, TakesNothingThatIsTypedForAnOperator)
{
    Write({Made("A-1", "水泵", "Pump and NOT valve"), Made("A-2", "水", "Near")});
    for (const char* text : {"\"", "\"\"\"", "*", "^", "{name_zh}", "-", "(", "' OR 1=1 --", "a\"b", "水 \" 泵", ":",
             "%", "\\", "_", "NEAR(", "pump*", "\xF0\x9F\x9A\xB0"}) {
        Codes(text);
    }
    EXPECT_EQ(Codes("pump NOT valve"), QStringList{QStringLiteral("A-1")});
    EXPECT_EQ(Codes("pump OR water"), QStringList());
    EXPECT_EQ(Codes("code:A"), QStringList());
    EXPECT_EQ(Codes("  \t "), QStringList());
    EXPECT_EQ(Codes(QStringLiteral("水").repeated(100000)), QStringList());
    EXPECT_EQ(Codes(QStringLiteral("水 ").repeated(1000)).size(), 3);
}

TEST_F(Search, GivesTheTotalBesideTheFirst)
{
    Write(ManyComponents(60));
    DatabaseReason reason;
    const SearchResult result = m_database->Search(QStringLiteral("闸阀"), 7, reason);
    EXPECT_EQ(result.hits.size(), 7U);
    EXPECT_EQ(result.total, 61);
    EXPECT_EQ(result.hits.front().kind, SearchHit::Kind::Category);
    EXPECT_EQ(result.hits.front().match, SearchMatch::NamePrefix);
    EXPECT_EQ(result.hits.back().categoryCode, QStringLiteral("WAT.VLV.GATE"));
}

/// One thing to find, for the plain reference.
struct Entry
{
    QString code;
    std::vector<QStringList> fields; ///< Words of code, Chinese name, English name, sounds, and the rest.
};

bool StandsAt(const QStringList& words, int at, const QStringList& phrase, bool goesOn)
{
    for (int index = 0; index < phrase.size(); ++index) {
        const bool isLast = index + 1 == phrase.size();
        const QString word = words.value(at + index);
        if (isLast && goesOn ? !word.startsWith(phrase[index]) : word != phrase[index]) {
            return false;
        }
    }
    return at + phrase.size() <= words.size();
}

bool Holds(const QStringList& words, const QStringList& phrase, bool goesOn)
{
    for (int at = 0; at < words.size(); ++at) {
        if (StandsAt(words, at, phrase, goesOn)) {
            return true;
        }
    }
    return false;
}

int RankOf(const Entry& entry, const QString& text)
{
    const QList<QStringList> terms = FoldedTerms(text);
    const QStringList all = FoldedWords(text);
    const auto goesOn = [](const QStringList& words) {
        return words.last().back() < QChar(0x2E80) && !words.last().back().isDigit();
    };
    const auto every = [&](auto&& holds) { return std::all_of(terms.begin(), terms.end(), holds); };
    const auto inNames = [&](const QStringList& term) {
        return Holds(entry.fields[1], term, goesOn(term)) || Holds(entry.fields[2], term, goesOn(term));
    };
    if (entry.fields[0] == all) {
        return 0;
    }
    if (StandsAt(entry.fields[1], 0, all, goesOn(all)) || StandsAt(entry.fields[2], 0, all, goesOn(all))) {
        return 1;
    }
    if (every(inNames)) {
        return 2;
    }
    if (every([&](const QStringList& term) {
            return inNames(term) || (term.size() == 1 && goesOn(term) && Holds(entry.fields[3], term, true));
        })) {
        return 3;
    }
    return every([&](const QStringList& term) {
        return Holds(entry.fields[0], term, true) ||
               std::any_of(entry.fields.begin(), entry.fields.end(),
                   [&](const QStringList& words) { return Holds(words, term, goesOn(term)); });
    })
               ? 4
               : 5;
}

QString RandomText(std::mt19937& random, int most)
{
    static const QStringList pieces{QStringLiteral("水"), QStringLiteral("泵"), QStringLiteral("阀"),
        QStringLiteral("水泵"), QStringLiteral("valve"), QStringLiteral("val"), QStringLiteral("Ｖ"),
        QStringLiteral("DN5"), QStringLiteral("DN50"), QStringLiteral("s"), QStringLiteral("shui"), QStringLiteral("-"),
        QStringLiteral("fa"), QStringLiteral("é"), QStringLiteral("0.5")};
    QString text;
    for (int count = static_cast<int>(random() % static_cast<unsigned>(most)) + 1; count > 0; --count) {
        text += pieces[static_cast<int>(random() % static_cast<unsigned>(pieces.size()))];
        text += random() % 2 == 0 ? QStringLiteral(" ") : QString();
    }
    return text;
}

TEST_F(Search, FindsAndOrdersAsAPlainReferenceDoes)
{
    std::mt19937 random(5);
    Pinyin pinyin;
    std::vector<SmallComponent> components;
    std::vector<Entry> entries;
    for (int index = 0; index < 150; ++index) {
        SmallComponent component{RandomText(random, 2) + QString::number(index),
            {RandomText(random, 4), RandomText(random, 4)}, {{RandomText(random, 3), {}}}};
        entries.push_back({component.code,
            {FoldedWords(component.code), FoldedWords(component.name.chinese), FoldedWords(component.name.english),
                pinyin.Words(component.name.chinese), FoldedWords(component.types.front().name)}});
        components.push_back(std::move(component));
    }
    Write(components);
    int found = 0;
    for (int round = 0; round < 1000; ++round) {
        const QString text = round % 10 == 0 ? components[random() % components.size()].code : RandomText(random, 3);
        std::vector<QStringList> ranks(6);
        for (const Entry& entry : entries) {
            ranks[FoldedWords(text).isEmpty() ? 5U : static_cast<std::size_t>(RankOf(entry, text))] += entry.code;
        }
        QStringList codes = Codes(text, 1000);
        // The tree is not part of the reference.
        for (const char* code : {"WAT", "AIR", "WAT.VLV", "WAT.VLV.GATE"}) {
            codes.removeAll(QLatin1String(code));
        }
        ASSERT_EQ(codes, ranks[0] + ranks[1] + ranks[2] + ranks[3] + ranks[4]) << text.toStdString();
        found += codes.size();
    }
    EXPECT_GT(found, 1000);
}

TEST(FoldedWords, CutAndFold)
{
    EXPECT_EQ(FoldedWords(QStringLiteral("ＤＮ５０ 闸阀,Ｇate-Valve ②½ ﬁn")),
        (QStringList{QStringLiteral("dn50"), QStringLiteral("闸"), QStringLiteral("阀"), QStringLiteral("gate"),
            QStringLiteral("valve"), QStringLiteral("21"), QStringLiteral("2"), QStringLiteral("fin")}));
    EXPECT_EQ(FoldedWords(QStringLiteral("𠀀a한국")), (QStringList{QStringLiteral("𠀀"), QStringLiteral("a한국")}));
    EXPECT_EQ(FoldedTerms(QStringLiteral(" a-b　c\t- ")),
        (QList<QStringList>{{QStringLiteral("a"), QStringLiteral("b")}, {QStringLiteral("c")}}));
}

TEST(PinyinWords, GoFromEachCharacterToTheEndOfTheRun)
{
    EXPECT_EQ(Pinyin().Words(QStringLiteral("水泵 DN50阀")),
        (QStringList{QStringLiteral("beng"), QStringLiteral("b"), QStringLiteral("shuibeng"), QStringLiteral("sb"),
            QStringLiteral("fa"), QStringLiteral("f")}));
    EXPECT_EQ(Pinyin().Words(QStringLiteral("valve")), QStringList());
}

} // namespace
