#include "Requests/ReplyDiagnosis.h"

#include "Errors/ErrorTexts.h"

#include <QNetworkReply>
#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

/// A reply that ended well as far as Qt can see, with a body and the length that was announced for it.
class GoodReply : public QNetworkReply
{
public:
    GoodReply(const QByteArray& body, const QByteArray& length) : m_body(body)
    {
        setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 200);
        if (!length.isNull())
            setRawHeader("Content-Length", length);
        open(QIODevice::ReadOnly);
        setFinished(true);
    }

    void abort() override {}
    qint64 bytesAvailable() const override { return m_body.size() + QNetworkReply::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 most) override
    {
        const qint64 count = qMin<qint64>(most, m_body.size());
        std::copy_n(m_body.constData(), count, data);
        m_body.remove(0, static_cast<int>(count));
        return count;
    }

private:
    QByteArray m_body;
};

std::string CodeOf(const QByteArray& body, const QByteArray& length)
{
    GoodReply reply(body, length);
    return ErrorId(DiagnoseReply(reply, {}).code).toStdString();
}

TEST(ReplyDiagnosis, ComparesTheBodyWithTheAnnouncedLength)
{
    EXPECT_EQ(CodeOf("{\"a\":1}", "7"), "");
    EXPECT_EQ(CodeOf("{\"a\":1}", "8"), "network.closed");
    EXPECT_EQ(CodeOf("", "7"), "network.closed");
    EXPECT_EQ(CodeOf("", "0"), "server.empty_answer");
    EXPECT_EQ(CodeOf("{\"a\":1}", "6"), "") << "more than announced is for the parser to judge";
    EXPECT_EQ(CodeOf("{\"a\":1}", QByteArray()), "") << "no length says nothing";
    EXPECT_EQ(CodeOf("{\"a\":1}", "7, 9"), "") << "nor does one that is no number";
    EXPECT_EQ(CodeOf("{\"a\":1}", "99999999999999999999"), "");
}

TEST(ReplyDiagnosis, CountsWhatWasReadAlready)
{
    const GoodReply reply("", " 10 ");
    EXPECT_FALSE(IsCutShort(reply, 10));
    EXPECT_TRUE(IsCutShort(reply, 9));
}

} // namespace
} // namespace componentlibrary
