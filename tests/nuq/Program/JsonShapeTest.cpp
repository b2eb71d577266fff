#include "TarnNuqService/Providers/ImageSample.h"
#include "support/NuqFixture.h"
#include "support/SmallLibrary.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>

namespace nuqtest {
namespace {

/// What a document is made of, without its values: {"a":text,"b":[number]}. Members whose names are data become "*".
std::string Shape(const QJsonValue& value, const QString& name = QString())
{
    switch (value.type()) {
    case QJsonValue::Object: {
        const bool hasFreeNames = name == QLatin1String("thumbnails") || name == QLatin1String("values");
        const QJsonObject object = value.toObject();
        std::string shape;
        for (auto member = object.begin(); member != object.end(); ++member) {
            const std::string label = hasFreeNames ? "*" : member.key().toStdString();
            shape += (shape.empty() ? "" : ",") + label + ":" + Shape(member.value(), member.key());
            if (hasFreeNames)
                break;
        }
        return "{" + shape + "}";
    }
    case QJsonValue::Array:
        return value.toArray().isEmpty() ? "[]" : "[" + Shape(value.toArray().first()) + "]";
    case QJsonValue::String:
        return "text";
    case QJsonValue::Double:
        return "number";
    case QJsonValue::Bool:
        return "bool";
    default:
        return "null";
    }
}

/// The example below a heading of docs/json.md: its command line and its document.
struct Example
{
    QStringList command;
    QByteArray document;
};

QByteArray Between(const QByteArray& text, const QByteArray& begin, const QByteArray& end)
{
    const int from = text.indexOf(begin);
    if (from < 0)
        return QByteArray();
    const int at = from + begin.size();
    return text.mid(at, text.indexOf(end, at) - at);
}

std::map<std::string, Example> Examples()
{
    QFile file(QStringLiteral(NUQ_SOURCE_TREE "/docs/json.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::map<std::string, Example> examples;
    for (const QByteArray& section : file.readAll().replace("\n## ", "\x01").split('\x01')) {
        Example example;
        const QString line = QString::fromUtf8(Between(section, "```sh\nnuq ", "\n```"));
        example.command = line.split(QLatin1Char(' '));
        example.document = Between(section, "```json\n", "\n```");
        if (!example.document.isEmpty())
            examples[section.left(section.indexOf('\n')).toStdString()] = example;
    }
    return examples;
}

class JsonShapeTest : public NuqFixture
{
protected:
    JsonShapeTest()
    {
        const QByteArray definition = R"({"code":"c","name":"n","id":"g","values":{"a":"b"}})";
        OnData("/v3/categories", R"([{"id":1,"code":"W","count":1}])");
        OnData("/v1/components", R"({"totalCount":1,"list":[{"id":"C105801-001"}]})");
        OnData("/v1/components/C105801-001",
            R"({"id":"C105801-001","familyTypeNames":["A"],"thumbnailSizes":[{"size":"64","thumbnails":["t"]}]})");
        On("/v1/components/C999", testsupport::ScriptedResponse::Json(R"({"code":"NOT_FOUND","message":"No."})", 404));
        OnData("/v1/components/C105801-001/specifications",
            "{\"parameters\":[" + definition + R"(],"familyTypes":[{"name":"A","parameterValues":[]}]})");
        OnData("/v1/components/C105801-001/specifications/A",
            "{\"parameters\":[" + definition + R"(],"familyType":{"name":"A","parameterValues":[]}})");
        OnData("/v1/categories/WAT.PIPE.GALV/properties", "{\"categoryId\":1,\"propertyList\":[" + definition + "]}");
        OnData("/v1/hox_design/category/mappings", R"([{"categoryId":1,"categoryCode":"W","name":["n"],"major":0}])");
        WriteSmallLibrary(runner.ApplicationFolder(), QStringLiteral("WAT.PIPE.GALV"));
        OnData("/v1/projects", R"([{"id":"P","name":"N"}])");
        OnData("/v1/projects/P/components/existence", R"({"exist":true,"version":1})");
        server.On("/static/t",
            testsupport::ScriptedResponse::Content(testsupport::ImageBytes(testsupport::SampleImage()), "image/png"));
    }
};

TEST_F(JsonShapeTest, IsTheDocumentedOneForEveryCommand)
{
    const auto examples = Examples();
    EXPECT_EQ(examples.size(), 22u);
    for (const auto& [heading, example] : examples) {
        const QJsonDocument documented = QJsonDocument::fromJson(example.document);
        ASSERT_TRUE(documented.isObject()) << heading;
        const NuqResult result = runner.Run(example.command);
        QJsonParseError error{};
        const QJsonDocument written = QJsonDocument::fromJson(QByteArray::fromStdString(result.out), &error);
        ASSERT_EQ(error.error, QJsonParseError::NoError) << heading << result.out << result.err;
        EXPECT_EQ(Shape(written.object()), Shape(documented.object())) << heading;
    }
}

/// The keys of every object, in the order in which they were written.
void ExpectSorted(const std::string& text)
{
    // Qt sorts keys itself, so a document that is written back compactly is the same only when it was sorted.
    const QByteArray compact = QJsonDocument::fromJson(QByteArray::fromStdString(text)).toJson(QJsonDocument::Compact);
    EXPECT_EQ(Replaced(text, "\n", ""), compact.toStdString());
}

TEST_F(JsonShapeTest, HasSortedKeys)
{
    for (const auto& [heading, example] : Examples()) {
        if (heading != "tour" && heading != "doctor")
            ExpectSorted(runner.Run(example.command).out);
    }
}

} // namespace
} // namespace nuqtest
