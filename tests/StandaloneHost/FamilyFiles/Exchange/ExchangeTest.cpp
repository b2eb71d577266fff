#include "support/BuiltSolid.h"
#include "support/FileSizeLimit.h"
#include "support/MeasuredRecipes.h"
#include "support/TestFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>
#include <cstring>
#include <gmock/gmock.h>
#include <thread>

namespace familyfiles {
namespace {

using familyfiles::testing::BuiltSolidOf;
using familyfiles::testing::Kernel;
using familyfiles::testing::MeasuredRecipe;
using familyfiles::testing::RecipeOf;
using ::testing::HasSubstr;

const std::string kTwoColours = RecipeOf(R"({"op": "box", "size": [40, 20, 30], "color": "brass"},
    {"op": "cylinder", "radius": 5, "length": 60}, {"op": "fuse"})");

class StepFiles : public ::testing::TestWithParam<MeasuredRecipe>
{
};

TEST_P(StepFiles, ComeBackWithTheSameVolume)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(GetParam().recipe);
    ASSERT_NE(solid, nullptr);

    for (const StepSchema schema : {StepSchema::Ap214, StepSchema::Ap242}) {
        const std::string path = folder.Path(QStringLiteral("构件.step")).toStdString();
        Reason reason;
        ASSERT_TRUE(Kernel().WriteStep(*solid, path, schema, reason)) << reason.english;
        const BuildResult read = Kernel().ReadStep(path);
        ASSERT_NE(read.solid, nullptr) << read.reason.english;
        EXPECT_NEAR(read.solid->Volume(), solid->Volume(), solid->Volume() * 1e-6);
        EXPECT_TRUE(read.solid->IsValid());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StepFiles, ::testing::ValuesIn(familyfiles::testing::MeasuredRecipes()), testsupport::RowName());

TEST(StepFileSchemas, AreNamedInTheFile)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;

    ASSERT_TRUE(Kernel().WriteStep(*solid, folder.Path("a.step").toStdString(), StepSchema::Ap214, reason));
    ASSERT_TRUE(Kernel().WriteStep(*solid, folder.Path("b.step").toStdString(), StepSchema::Ap242, reason));

    EXPECT_THAT(folder.Read("a.step").toStdString(), HasSubstr("AUTOMOTIVE_DESIGN"));
    EXPECT_THAT(folder.Read("b.step").toStdString(), HasSubstr("AP242_MANAGED_MODEL_BASED_3D_ENGINEERING"));
    EXPECT_THAT(folder.Read("a.step").toStdString(), HasSubstr("COLOUR_RGB"));
    EXPECT_EQ(folder.Files().size(), 2) << "nothing is left beside the files";
}

TEST(StepFileWriting, PrintsNothing)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;
    ::testing::internal::CaptureStdout();

    EXPECT_TRUE(Kernel().WriteStep(*solid, folder.Path("a.step").toStdString(), StepSchema::Ap214, reason));
    EXPECT_NE(Kernel().ReadStep(folder.Path("a.step").toStdString()).solid, nullptr);

    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
}

/// The JSON part of a binary glTF file.
QJsonObject JsonOf(const QByteArray& binary)
{
    EXPECT_EQ(binary.left(4), "glTF");
    const auto length = static_cast<int>(qFromLittleEndian<quint32>(binary.constData() + 12));
    return QJsonDocument::fromJson(binary.mid(20, length)).object();
}

/// Least and greatest coordinates of all positions, metres.
std::array<double, 6> PositionsOf(const QJsonObject& gltf)
{
    std::array<double, 6> box{1e9, 1e9, 1e9, -1e9, -1e9, -1e9};
    for (const QJsonValue& mesh : gltf["meshes"].toArray()) {
        for (const QJsonValue& primitive : mesh["primitives"].toArray()) {
            const QJsonValue accessor = gltf["accessors"].toArray()[primitive["attributes"]["POSITION"].toInt()];
            for (int i = 0; i < 3; ++i) {
                const auto side = static_cast<std::size_t>(i);
                box[side] = std::min(box[side], accessor["min"].toArray()[i].toDouble());
                box[side + 3] = std::max(box[side + 3], accessor["max"].toArray()[i].toDouble());
            }
        }
    }
    return box;
}

TEST(GltfFiles, AreInMetresWithYUp)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;

    ASSERT_TRUE(Kernel().WriteGltf(*solid, folder.Path("构件.glb").toStdString(), reason)) << reason.english;

    const QJsonObject gltf = JsonOf(folder.Read(QStringLiteral("构件.glb")));
    EXPECT_EQ(gltf["asset"].toObject()["version"].toString(), "2.0");
    EXPECT_EQ(gltf["materials"].toArray().size(), 2);
    const std::array<double, 6> box = PositionsOf(gltf);
    EXPECT_NEAR(box[0], -0.02, 1e-5);
    EXPECT_NEAR(box[3], 0.02, 1e-5);
    EXPECT_NEAR(box[1], 0, 1e-5);
    EXPECT_NEAR(box[4], 0.06, 1e-5);
    EXPECT_NEAR(box[5], 0.01, 1e-5);
}

TEST(GltfFiles, WithTheSuffixOfTheTextFormHaveAllInOneDocument)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;

    ASSERT_TRUE(Kernel().WriteGltf(*solid, folder.Path("a.gltf").toStdString(), reason)) << reason.english;
    ASSERT_TRUE(Kernel().WriteGltf(*solid, folder.Path("a.glb").toStdString(), reason)) << reason.english;

    const QJsonObject gltf = QJsonDocument::fromJson(folder.Read("a.gltf")).object();
    const QJsonObject buffer = gltf["buffers"].toArray()[0].toObject();
    const QString uri = buffer["uri"].toString();
    const QString head = QStringLiteral("data:application/octet-stream;base64,");
    ASSERT_TRUE(uri.startsWith(head));
    const QByteArray data = QByteArray::fromBase64(uri.mid(head.size()).toLatin1());
    EXPECT_GE(data.size(), buffer["byteLength"].toInt());
    EXPECT_TRUE(folder.Read("a.glb").contains(data.left(buffer["byteLength"].toInt())));
    EXPECT_EQ(PositionsOf(gltf), PositionsOf(JsonOf(folder.Read("a.glb"))));
    EXPECT_EQ(folder.Files().size(), 2);
}

TEST(StlFiles, AreClosedAndOfTheSolidsVolume)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;

    ASSERT_TRUE(Kernel().WriteStl(*solid, folder.Path("a.stl").toStdString(), reason)) << reason.english;

    const QByteArray stl = folder.Read("a.stl");
    const auto count = qFromLittleEndian<quint32>(stl.constData() + 80);
    ASSERT_EQ(stl.size(), static_cast<int>(84 + 50 * count));
    double volume = 0;
    for (quint32 i = 0; i < count; ++i) {
        std::array<float, 9> corners{};
        std::memcpy(corners.data(), stl.constData() + 84 + 50 * i + 12, sizeof corners);
        const Point3 a{corners[0], corners[1], corners[2]};
        const Point3 b{corners[3], corners[4], corners[5]};
        const Point3 c{corners[6], corners[7], corners[8]};
        volume += Dot(a, Cross(b, c)) / 6;
    }
    EXPECT_NEAR(volume, solid->Volume(), solid->Volume() * 5e-3);
}

enum class Format
{
    Step,
    Gltf,
    Stl
};

bool Write(Format format, const Solid& solid, const std::string& path, Reason& reason)
{
    switch (format) {
    case Format::Step:
        return Kernel().WriteStep(solid, path, StepSchema::Ap214, reason);
    case Format::Gltf:
        return Kernel().WriteGltf(solid, path, reason);
    case Format::Stl:
        break;
    }
    return Kernel().WriteStl(solid, path, reason);
}

class ExchangeFaults : public ::testing::TestWithParam<Format>
{
};

TEST_P(ExchangeFaults, WithoutAFolderSayWhy)
{
    const TestFolder folder;
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;

    EXPECT_FALSE(Write(GetParam(), *solid, folder.Path("none/a.x").toStdString(), reason));
    EXPECT_EQ(reason.code, "exchange.failed");
    EXPECT_THAT(reason.english, HasSubstr("The file cannot be written: "));
    EXPECT_THAT(reason.chinese, HasSubstr("无法写入文件"));
    EXPECT_TRUE(folder.Files().isEmpty());
}

TEST_P(ExchangeFaults, OnAFullDiskKeepTheFileThatWasThere)
{
    const TestFolder folder;
    const QString path = folder.Write("a.x", "old");
    const auto solid = BuiltSolidOf(kTwoColours);
    Reason reason;
    {
        const testsupport::FileSizeLimit limit(600);
        EXPECT_FALSE(Write(GetParam(), *solid, path.toStdString(), reason));
    }
    EXPECT_EQ(reason.code, "exchange.failed") << reason.english;
    EXPECT_EQ(folder.Read("a.x"), "old");
    EXPECT_EQ(folder.Files().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Formats, ExchangeFaults, ::testing::Values(Format::Step, Format::Gltf, Format::Stl));

TEST(StepFileReading, OfWhatIsNoneSaysWhy)
{
    const TestFolder folder;

    EXPECT_EQ(Kernel().ReadStep(folder.Path("none.step").toStdString()).reason.code, "exchange.failed");
    EXPECT_EQ(Kernel().ReadStep(folder.Write("bad.step", "no step").toStdString()).reason.code, "exchange.failed");
}

TEST(ExchangeThreads, WriteAndReadAtTheSameTime)
{
    const TestFolder folder;
    std::vector<std::thread> threads;
    std::array<bool, 4> isDone{};
    for (std::size_t i = 0; i < isDone.size(); ++i) {
        threads.emplace_back([&folder, &isDone, i] {
            const auto solid = BuiltSolidOf(kTwoColours);
            const std::string path = folder.Path(QString::number(static_cast<int>(i)) + ".step").toStdString();
            const auto schema = i % 2 == 0 ? StepSchema::Ap214 : StepSchema::Ap242;
            Reason reason;
            isDone[i] = Kernel().WriteStep(*solid, path, schema, reason) && Kernel().ReadStep(path).solid != nullptr;
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(isDone, ::testing::Each(true));
    EXPECT_THAT(folder.Read("0.step").toStdString(), HasSubstr("AUTOMOTIVE_DESIGN"));
    EXPECT_THAT(folder.Read("1.step").toStdString(), HasSubstr("AP242"));
}

} // namespace
} // namespace familyfiles
