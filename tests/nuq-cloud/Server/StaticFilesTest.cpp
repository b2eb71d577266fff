#include "nuq-cloud/support/TestServer.h"

#include "FaultRelay/FaultRelayThread.h"
#include "Sessions/Base64.h"

#include <QCryptographicHash>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace cloudtest {
namespace {

const std::string kPicture = "/static/thumbnails/pump/128.png";
const std::string kDrawing = "/static/thumbnails/pump/plan.svg";
const std::string kFamily = "/static/families/pump.nuqfamily";
const std::string kFamilyFile = "static/families/pump.nuqfamily";

std::string RandomBytes(std::size_t count)
{
    std::mt19937 random(static_cast<unsigned>(count));
    std::string bytes(count, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(random());
    }
    return bytes;
}

QByteArray Sha256(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArray::fromStdString(bytes), QCryptographicHash::Sha256);
}

std::string TagOf(const std::string& bytes)
{
    return '"' + Sha256(bytes).toHex().toStdString() + '"';
}

std::string DigestOf(const std::string& bytes)
{
    return "sha-256=:" + Sha256(bytes).toBase64().toStdString() + ':';
}

class StaticFiles : public ::testing::Test
{
protected:
    StaticFiles() { std::filesystem::create_directories(m_server.Library().Path() / "static" / "families"); }

    RawReply Get(const std::string& target, const std::vector<std::string>& headers = {}) const
    {
        return Fetch(m_server.Port(), target, headers);
    }

    RawReply Head(const std::string& target, const std::vector<std::string>& headers = {}) const
    {
        RawClient client(m_server.Port());
        client.Send(Request(target, headers, "HEAD"));
        return client.ReadReply(false);
    }

    std::string WriteFamily(std::size_t size) const
    {
        const std::string bytes = RandomBytes(size);
        m_server.Library().Write(kFamilyFile, bytes);
        return bytes;
    }

    const TestServer m_server;
};

TEST_F(StaticFiles, AreServedWithTheirType)
{
    const RawReply picture = Get(kPicture);
    EXPECT_EQ(picture.Status(), 200);
    EXPECT_EQ(picture.body, "\x89PNG" + std::string(996, 'x'));
    EXPECT_EQ(picture.Header("Content-Type"), "image/png");
    EXPECT_EQ(Get("/qa" + kPicture).body, picture.body);
    EXPECT_EQ(Get(kDrawing).Header("Content-Type"), "image/svg+xml");
}

TEST_F(StaticFiles, IncludeFamilyFiles)
{
    const std::string bytes = WriteFamily(100000);
    const RawReply reply = Get(kFamily, {"Accept-Encoding: gzip"});
    EXPECT_EQ(reply.Status(), 200);
    EXPECT_EQ(reply.body, bytes);
    EXPECT_EQ(reply.Header("Content-Type"), "application/vnd.tarnnuq.family+zip");
    EXPECT_EQ(reply.Header("Content-Length"), "100000");
    EXPECT_EQ(reply.Header("Content-Encoding"), "");
    EXPECT_EQ(reply.Header("ETag"), TagOf(bytes));
    EXPECT_EQ(reply.Header("Repr-Digest"), DigestOf(bytes));
    EXPECT_EQ(reply.Header("Accept-Ranges"), "bytes");
    EXPECT_EQ(reply.Header("Vary"), "");
}

TEST_F(StaticFiles, AreSentWholeWhateverTheirSize)
{
    for (const std::size_t size : {0U, 1U, 65536U, 1048576U, 1048577U, 20000003U}) {
        const std::string bytes = WriteFamily(size);
        const RawReply reply = Get(kFamily);
        EXPECT_EQ(reply.Header("Content-Length"), std::to_string(size));
        EXPECT_TRUE(reply.body == bytes) << size;
        EXPECT_EQ(reply.Header("ETag"), TagOf(bytes)) << size;
        const RawReply head = Head(kFamily);
        EXPECT_EQ(head.Header("Content-Length"), std::to_string(size));
        EXPECT_EQ(head.Header("ETag"), TagOf(bytes)) << size;
    }
}

TEST_F(StaticFiles, AreCompressedWhenTheyAreText)
{
    const RawReply packed = Get(kDrawing, {"Accept-Encoding: gzip"});
    EXPECT_EQ(packed.Header("Content-Encoding"), "gzip");
    EXPECT_EQ(packed.Text(), "<svg>" + std::string(1000, ' ') + "</svg>");
    EXPECT_EQ(packed.Header("Vary"), "Accept-Encoding");
    EXPECT_EQ(Get(kDrawing).Header("Vary"), "Accept-Encoding");
}

TEST_F(StaticFiles, HaveAnotherTagWhenTheyAreCompressed)
{
    const RawReply plain = Get(kDrawing);
    const RawReply packed = Get(kDrawing, {"Accept-Encoding: gzip"});
    const std::string tag = TagOf(plain.body);
    EXPECT_EQ(plain.Header("ETag"), tag);
    EXPECT_EQ(packed.Header("ETag"), tag.substr(0, 65) + "-gzip\"");
    EXPECT_EQ(plain.Header("Repr-Digest"), DigestOf(plain.body));
    EXPECT_EQ(packed.Header("Repr-Digest"), "");
    // Parts of the two forms never meet in one file.
    EXPECT_EQ(Get(kDrawing, {"Range: bytes=10-", "If-Range: " + packed.Header("ETag")}).Status(), 200);
    EXPECT_EQ(Get(kDrawing, {"Range: bytes=10-", "If-Range: " + tag}).body, plain.body.substr(10));
    const RawReply known = Get(kDrawing, {"Accept-Encoding: gzip", "If-None-Match: " + packed.Header("ETag")});
    EXPECT_EQ(known.Status(), 304);
    EXPECT_EQ(known.Header("ETag"), packed.Header("ETag"));
}

TEST_F(StaticFiles, MayHaveNamesOutsideAscii)
{
    m_server.Library().Write("static/泵 1.png", "picture");
    EXPECT_EQ(Get("/static/%E6%B3%B5%201.png").body, "picture");
}

TEST_F(StaticFiles, NeverLeadOutOfTheirFolder)
{
    m_server.Library().Write("secret.txt", "secret");
    for (const char* target : {"/static/../library.json", "/static/%2e%2e/library.json", "/static/..%2flibrary.json",
             "/static/thumbnails/../../library.json", "/static//library.json", "/static/./thumbnails/pump/128.png",
             "/static/%2Fetc/passwd", "/static", "/static/", "/static/thumbnails", "/static/none.png"}) {
        const RawReply reply = Get(target);
        EXPECT_EQ(reply.Status(), 404) << target;
        EXPECT_EQ(reply.body, R"({"code":"NOT_FOUND","message":"There is no such file.","data":null})") << target;
    }
}

TEST_F(StaticFiles, AreRegularFilesAlone)
{
    const std::string pipe = (m_server.Library().Path() / "static" / "pipe.png").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(Get("/static/pipe.png").Status(), 404);
}

TEST_F(StaticFiles, AreNotSentAgainWhenTheTagIsKnown)
{
    const std::string tag = Get(kPicture).Header("ETag");
    for (const std::string& value :
        {tag, "W/" + tag, "\"a\", W/\"b, c\" , " + tag + ", \"d\"", std::string("*"), std::string(" * ")}) {
        const RawReply reply = Get(kPicture, {"If-None-Match: " + value});
        EXPECT_EQ(reply.Status(), 304) << value;
        EXPECT_EQ(reply.body, "");
        EXPECT_EQ(reply.Header("ETag"), tag) << value;
    }
    for (const std::string& value : {std::string("\"other\""), tag.substr(1, 64), tag.substr(0, 65), '"' + tag,
             std::string("\"*\""), std::string("\"a\", \"b")}) {
        EXPECT_EQ(Get(kPicture, {"If-None-Match: " + value}).Status(), 200) << value;
    }
    EXPECT_EQ(Head(kPicture, {"If-None-Match: " + tag}).Status(), 304);
}

TEST_F(StaticFiles, KnownByTheirTagAreNotSentInPartsEither)
{
    const std::string tag = Get(kPicture).Header("ETag");
    EXPECT_EQ(Get(kPicture, {"If-None-Match: " + tag, "Range: bytes=0-3"}).Status(), 304);
    EXPECT_EQ(Get(kPicture, {"If-None-Match: " + tag, "Range: bytes=5000-"}).Status(), 304);
}

TEST_F(StaticFiles, ChangeTheirTagWithTheirContent)
{
    const std::string tag = Get(kPicture).Header("ETag");
    m_server.Library().Write("static/thumbnails/pump/128.png", "changed");
    EXPECT_EQ(Get(kPicture).Header("ETag"), TagOf("changed"));
    EXPECT_EQ(Get(kPicture, {"If-None-Match: " + tag}).Status(), 200);
}

TEST_F(StaticFiles, ChangeTheirTagAlsoWhenSizeAndTimeStay)
{
    const std::filesystem::path file = m_server.Library().Path() / "static/thumbnails/pump/128.png";
    m_server.Library().Write("static/thumbnails/pump/128.png", "first.");
    const auto time = std::filesystem::last_write_time(file);
    EXPECT_EQ(Get(kPicture).Header("ETag"), TagOf("first."));
    m_server.Library().Write("static/thumbnails/pump/128.png", "second");
    std::filesystem::last_write_time(file, time);
    EXPECT_EQ(Get(kPicture).Header("ETag"), TagOf("second"));
}

TEST_F(StaticFiles, KeepTheirTagWhenTheSameBytesAreWrittenAgain)
{
    const std::string bytes = WriteFamily(5000);
    const std::string tag = Get(kFamily).Header("ETag");
    std::filesystem::remove(m_server.Library().Path() / kFamilyFile);
    EXPECT_EQ(Get(kFamily).Status(), 404);
    EXPECT_EQ(WriteFamily(5000), bytes);
    EXPECT_EQ(Get(kFamily).Header("ETag"), tag);
    EXPECT_EQ(Get(kFamily, {"Range: bytes=4000-", "If-Range: " + tag}).body, bytes.substr(4000));
}

TEST_F(StaticFiles, CanBeReadInParts)
{
    const RawReply part = Get(kPicture, {"Range: bytes=0-3"});
    EXPECT_EQ(part.Status(), 206);
    EXPECT_EQ(part.body, "\x89PNG");
    EXPECT_EQ(part.Header("Content-Range"), "bytes 0-3/1000");
    EXPECT_EQ(Get(kPicture, {"Range: bytes=990-"}).body, std::string(10, 'x'));
    const RawReply behind = Get(kPicture, {"Range: bytes=1000-"});
    EXPECT_EQ(behind.Status(), 416);
    EXPECT_EQ(behind.Header("Content-Range"), "bytes */1000");
}

TEST_F(StaticFiles, TellTheWholeFilesTagAndDigestWithEachPart)
{
    const std::string bytes = WriteFamily(3000000);
    const RawReply part = Get(kFamily, {"Range: bytes=1000000-2999998"});
    EXPECT_EQ(part.Status(), 206);
    EXPECT_TRUE(part.body == bytes.substr(1000000, 1999999));
    EXPECT_EQ(part.Header("Content-Range"), "bytes 1000000-2999998/3000000");
    EXPECT_EQ(part.Header("Content-Length"), "1999999");
    EXPECT_EQ(part.Header("ETag"), TagOf(bytes));
    EXPECT_EQ(part.Header("Repr-Digest"), DigestOf(bytes));
}

TEST_F(StaticFiles, AreToldAboutWholeByHead)
{
    const RawReply part = Head(kPicture, {"Range: bytes=0-3"});
    EXPECT_EQ(part.Status(), 200);
    EXPECT_EQ(part.Header("Content-Length"), "1000");
    EXPECT_EQ(part.Header("Content-Range"), "");
    EXPECT_EQ(part.Header("Accept-Ranges"), "bytes");
    EXPECT_EQ(Head(kPicture, {"Range: bytes=1000-"}).Status(), 200);
}

TEST_F(StaticFiles, AreSentWholeWhenTheyChangedSinceTheFirstPart)
{
    const std::string tag = Get(kPicture).Header("ETag");
    EXPECT_EQ(Get(kPicture, {"Range: bytes=0-3", "If-Range: " + tag}).Status(), 206);
    // A weak tag and a date do not say that the bytes are the same.
    for (const std::string& value :
        {std::string("\"old\""), "W/" + tag, std::string("Tue, 14 Nov 2023 22:13:20 GMT")}) {
        const RawReply whole = Get(kPicture, {"Range: bytes=0-3", "If-Range: " + value});
        EXPECT_EQ(whole.Status(), 200) << value;
        EXPECT_EQ(whole.body.size(), 1000U) << value;
    }
}

TEST_F(StaticFiles, AreOneFileToTheEndAlsoWhenAnotherTakesTheirName)
{
    const std::string bytes = WriteFamily(30000000);
    RawClient client(m_server.Port());
    client.Send(Request(kFamily));
    m_server.Library().Write("static/families/next", "another file");
    // The client takes its time: most of the file is still to be read by the server.
    while (Get("/static/families/next").Status() != 200) {
    }
    std::filesystem::rename(
        m_server.Library().Path() / "static/families/next", m_server.Library().Path() / kFamilyFile);
    const RawReply reply = client.ReadReply();
    EXPECT_TRUE(reply.body == bytes || reply.body == "another file");
    EXPECT_EQ(reply.Header("ETag"), TagOf(reply.body));
    EXPECT_EQ(Get(kFamily).body, "another file");
}

TEST_F(StaticFiles, CutWhileTheyAreSentEndTheConnection)
{
    WriteFamily(30000000);
    RawClient client(m_server.Port());
    client.Send(Request(kFamily, {"Connection: close"}));
    std::filesystem::resize_file(m_server.Library().Path() / kFamilyFile, 10);
    const RawReply reply = Split(client.ReadAll());
    EXPECT_TRUE(client.WasClosed() || client.WasReset());
    EXPECT_LT(reply.body.size(), 30000000U);
}

/// Downloads through a relay that cuts.
class InterruptedDownload : public StaticFiles, public ::testing::WithParamInterface<int>
{
protected:
    static constexpr std::size_t kSize = 2000000;

    /// What arrives before the cut behind that many bytes of the body.
    RawReply Begin(std::size_t cutBehind)
    {
        RawClient client(m_relay.Port());
        client.Send(Request(kFamily, {"X-Nuq-Fault: truncate=" + std::to_string(cutBehind)}));
        return Split(client.ReadAll());
    }

    RawReply Continue(const RawReply& beginning) const
    {
        return Get(kFamily,
            {"Range: bytes=" + std::to_string(beginning.body.size()) + '-', "If-Range: " + beginning.Header("ETag")});
    }

    nuqcloud::FaultRelayThread m_relay{static_cast<quint16>(m_server.Port())};
};

TEST_P(InterruptedDownload, GoesOnWhereItEnded)
{
    const std::string bytes = WriteFamily(kSize);
    const std::size_t cut = kSize / 100 * static_cast<std::size_t>(GetParam());
    const RawReply beginning = Begin(cut);
    EXPECT_EQ(beginning.Status(), 200);
    ASSERT_EQ(beginning.body.size(), cut);
    const RawReply rest = Continue(beginning);
    EXPECT_EQ(rest.Status(), 206);
    EXPECT_EQ(rest.body.size(), kSize - cut);
    EXPECT_TRUE(beginning.body + rest.body == bytes);
    EXPECT_EQ(rest.Header("Repr-Digest"), DigestOf(beginning.body + rest.body));
}

TEST_P(InterruptedDownload, BeginsAnewWhenTheFileHasChanged)
{
    WriteFamily(kSize);
    const RawReply beginning = Begin(kSize / 100 * static_cast<std::size_t>(GetParam()));
    const std::string changed = WriteFamily(kSize + 1);
    const RawReply whole = Continue(beginning);
    EXPECT_EQ(whole.Status(), 200);
    EXPECT_TRUE(whole.body == changed);
}

INSTANTIATE_TEST_SUITE_P(Percent, InterruptedDownload, ::testing::Values(1, 50, 99));

TEST_F(StaticFiles, ObeyFaultsWhateverTheirSize)
{
    const TestServer faulty(WithFaults());
    const std::string bytes = RandomBytes(3000000);
    faulty.Library().Write("static/large.bin", bytes);
    const RawReply partial = Fetch(faulty.Port(), "/static/large.bin", {"X-Nuq-Fault: partial"});
    EXPECT_EQ(partial.Status(), 206);
    EXPECT_TRUE(partial.body == bytes.substr(0, 1500000));
}

} // namespace
} // namespace cloudtest
