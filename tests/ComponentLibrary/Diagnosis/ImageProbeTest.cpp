#include "Diagnosis/ImageProbe.h"

#include "support/CatalogueFixture.h"

namespace componentlibrary {
namespace {

using testsupport::ScriptedResponse;
using Framing = ScriptedResponse::Framing;
using CutPoint = ScriptedResponse::CutPoint;

struct Picture
{
    const char* name;
    QByteArray body;
};

const std::vector<Picture>& Pictures()
{
    static const std::vector<Picture> pictures = {
        {"PNG", QByteArray("\x89PNG\r\n\x1a\n", 8) + "data" + QByteArray("\0\0\0\0IEND\xae\x42\x60\x82", 12)},
        {"JPEG", QByteArray("\xff\xd8\xff\xe0 data \xff\xd9")},
        {"GIF", QByteArray("GIF89a data;")},
        {"WebP", QByteArray("RIFF\x0c\0\0\0WEBPVP8 data", 20)},
        {"SVG", QByteArray("<?xml version=\"1.0\"?>\n<svg xmlns=\"x\"><path/></svg>\n")},
    };
    return pictures;
}

class ImageProbeTest : public CatalogueFixture
{
protected:
    std::string CodeOf(const ScriptedResponse& response)
    {
        const QByteArray target = "/t.png?number=" + QByteArray::number(++m_number);
        server.On(target, response);
        ImageProbe probe(TheCatalogue().Channel(), server.Url(QString::fromLatin1(target)));
        int count = 0;
        QObject::connect(&probe, &ImageProbe::Finished, &probe, [&count] { ++count; });
        probe.Start();
        EXPECT_TRUE(testsupport::WaitFor([&count] { return count > 0; }));
        EXPECT_EQ(count, 1);
        return ErrorId(probe.Error().code).toStdString();
    }

private:
    int m_number = 0;
};

TEST_F(ImageProbeTest, AcceptsEveryKindOfPicture)
{
    for (const Picture& picture : Pictures())
        EXPECT_EQ(CodeOf(ScriptedResponse::Content(picture.body, "image/png")), "") << picture.name;
    EXPECT_EQ(server.Requests().back().HeaderCount("Authorization"), 0);
}

TEST_F(ImageProbeTest, NoticesACutThatNoLengthTells)
{
    for (const Picture& picture : Pictures()) {
        const QByteArray cut = picture.body.trimmed().chopped(1);
        EXPECT_NE(CodeOf(ScriptedResponse::Content(cut, "image/png").WithFraming(Framing::UntilClose)), "")
            << picture.name;
    }
}

TEST_F(ImageProbeTest, NamesAPictureThatViewsCannotUnpack)
{
    EXPECT_NE(
        CodeOf(ScriptedResponse::Content(Pictures().front().body, "image/png").WithHeader("Content-Encoding", "gzip")),
        "");
}

TEST_F(ImageProbeTest, NamesWhatIsNoPicture)
{
    EXPECT_EQ(CodeOf(ScriptedResponse::Content("<html></html>", "text/html")), "server.html_page");
    EXPECT_EQ(CodeOf(ScriptedResponse::Content("", "image/png")), "server.empty_answer");
    EXPECT_EQ(CodeOf(ScriptedResponse::Status(404)), "not_found");
    const ScriptedResponse picture = ScriptedResponse::Content(Pictures().front().body, "image/png");
    EXPECT_EQ(CodeOf(ScriptedResponse(picture).CutAt(CutPoint::WithinBody)), "network.closed");
}

} // namespace
} // namespace componentlibrary
