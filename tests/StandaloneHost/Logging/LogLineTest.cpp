#include "Logging/LogLine.h"

#include "support/PrintQt.h"
#include <gtest/gtest.h>

using standalone::LogLine;

namespace {

TEST(LogLine, LeavesOrdinaryTextAlone)
{
    const QString text = QStringLiteral("C:\\new\\风管 \"100 %\" {} é 😀");
    EXPECT_EQ(LogLine(text), text);
    EXPECT_EQ(LogLine(QString()), QString());
}

TEST(LogLine, ShowsLineBreaksAndTabs)
{
    EXPECT_EQ(LogLine(QStringLiteral("a\r\nb\tc\n")), QStringLiteral("a\\r\\nb\\tc\\n"));
}

TEST(LogLine, ShowsControlCharacters)
{
    QString text = QStringLiteral("a\x1b[31mb\x07");
    text += QChar(0);
    text += QChar(0x7f);
    text += QChar(0x85);
    text += QChar(0x9b);
    text += QChar(0xa0);
    EXPECT_EQ(LogLine(text), QStringLiteral("a\\x1b[31mb\\x07\\x00\\x7f\\x85\\x9b") + QChar(0xa0));
}

TEST(LogLine, ShowsWhatBreaksLinesOrTurnsTheWritingDirection)
{
    const ushort codes[] = {0x2028, 0x2029, 0x202a, 0x202e, 0x2066, 0x2069, 0x200e, 0x200f};
    for (const ushort code : codes) {
        const QString text = QStringLiteral("a") + QChar(code) + QStringLiteral("b");
        EXPECT_EQ(LogLine(text), QStringLiteral("a\\u%1b").arg(code, 4, 16));
    }
    EXPECT_EQ(LogLine(QString(QChar(0x2027))), QString(QChar(0x2027)));
    EXPECT_EQ(LogLine(QString(QChar(0x202f))), QString(QChar(0x202f)));
}

} // namespace
