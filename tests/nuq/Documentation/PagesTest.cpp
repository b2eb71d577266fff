#include "Documentation/Pages.h"

#include "Commands/CommandList.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace nuq {
namespace {

QByteArray Content(const QString& path)
{
    QFile file(QStringLiteral(NUQ_SOURCE_TREE) + QLatin1Char('/') + path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

TEST(Pages, StandInTheTreeAsTheCommandTablesMakeThem)
{
    for (const Page& page : MakePages(MakeCommands())) {
        EXPECT_EQ(Content(QString::fromStdString(page.path)).toStdString(), page.text)
            << page.path << " is out of date: run nuq-pages on the source tree";
    }
}

TEST(Pages, NameEveryCommandAndOption)
{
    for (const Page& page : MakePages(MakeCommands())) {
        for (const auto& command : MakeCommands()) {
            // Completions know a command of two words by its words.
            for (const QString& word : QString::fromLatin1(command->Spec().name).split(QLatin1Char(' ')))
                EXPECT_NE(page.text.find(word.toStdString()), std::string::npos) << page.path << word.toStdString();
            for (const OptionSpec& option : command->Spec().options) {
                // The manual page writes a hyphen as "\-".
                const QString name = QString::fromLatin1(option.name).mid(2).section(QLatin1Char('-'), 0, 0);
                EXPECT_NE(page.text.find(name.toStdString()), std::string::npos) << page.path << option.name;
            }
        }
    }
}

TEST(Translation, LeavesNothingUnfinished)
{
    for (const char* file :
        {"nuq/translations/Nuq_zh_CN.ts", "ComponentLibrary/translations/ComponentLibrary_zh_CN.ts"}) {
        const QByteArray content = Content(QString::fromLatin1(file));
        EXPECT_GT(content.count("<source>"), 40) << file;
        EXPECT_EQ(content.count("type=\"unfinished\""), 0) << file;
        EXPECT_EQ(content.count("<translation></translation>") + content.count("<translation/>"), 0) << file;
    }
}

} // namespace
} // namespace nuq
