#include "Errors/ErrorTexts.h"

#include "Language/Translations.h"

#include <gtest/gtest.h>
#include <set>

namespace componentlibrary {
namespace {

/// Every placeholder has something to show, and the server's message looks like placeholders.
ErrorInfo Example(ErrorCode code)
{
    ErrorInfo error;
    error.code = code;
    error.operation = Operation::LoadCategories;
    error.address = QStringLiteral("http://h.example:8080/api/x");
    error.httpStatus = 500;
    error.serverMessage = QStringLiteral("Closed {today} %1.");
    error.retryAt = QDateTime(QDate(2099, 11, 21), QTime(10, 20, 30), Qt::UTC);
    return error;
}

struct Row
{
    const char* id;
    const char* english;
    const char* englishHint;
    const char* chinese;
    const char* chineseHint;
};

// clang-format off
const std::vector<Row>& Rows()
{
    static const std::vector<Row> rows = {
        {"cancelled",
            "It was cancelled.",
            "",
            "已取消。",
            ""},
        {"offline",
            "The program works offline and opens no connection.",
            "Switch offline mode off to ask the server.",
            "程序处于离线模式，不打开任何连接。",
            "要询问服务器，请关闭离线模式。"},
        {"configuration.no_endpoint",
            "No server address is configured for the current environment.",
            "Check the environment name and the environment files in the application folder; \"nuq doctor\" checks them one by one.",
            "当前环境没有配置服务器地址。",
            "请检查环境名称和应用程序文件夹中的环境文件；“nuq doctor”会逐一检查。"},
        {"configuration.bad_endpoint",
            "The configured server address is not an http or https address.",
            "Correct the address in the environment files.",
            "配置的服务器地址不是 http 或 https 地址。",
            "请更正环境文件中的地址。"},
        {"network.refused",
            "h.example:8080 refuses connections.",
            "Check that the server runs and that address and port are right.",
            "h.example:8080 拒绝连接。",
            "请确认服务器正在运行，且地址和端口正确。"},
        {"network.host_not_found",
            "The host name h.example:8080 cannot be found.",
            "Check the spelling of the address and the network's name service.",
            "找不到主机名 h.example:8080。",
            "请检查地址拼写和网络的域名服务。"},
        {"network.timeout",
            "h.example:8080 did not answer in time.",
            "Try again, or allow more time.",
            "h.example:8080 未在规定时间内应答。",
            "请重试，或允许更长的时间。"},
        {"network.closed",
            "h.example:8080 closed the connection before the answer was complete.",
            "Try again; if it stays so, a proxy or firewall may be cutting the connection.",
            "h.example:8080 在应答完成之前关闭了连接。",
            "请重试；如果仍然如此，可能是代理或防火墙切断了连接。"},
        {"network.unreachable",
            "The network to h.example:8080 is not available.",
            "Check the network connection of this computer.",
            "到 h.example:8080 的网络不可用。",
            "请检查本机的网络连接。"},
        {"network.proxy",
            "The proxy server on the way to h.example:8080 cannot be used.",
            "Check the proxy settings of this computer (http_proxy, https_proxy, no_proxy).",
            "通往 h.example:8080 的代理服务器无法使用。",
            "请检查本机的代理设置（http_proxy、https_proxy、no_proxy）。"},
        {"network.proxy_sign_in",
            "The proxy server on the way to h.example:8080 asks for a user name and a password.",
            "Put user name and password into the proxy settings.",
            "通往 h.example:8080 的代理服务器要求用户名和密码。",
            "请在代理设置中填写用户名和密码。"},
        {"network.fault",
            "The connection to h.example:8080 failed.",
            "Try again; the details name the cause.",
            "与 h.example:8080 的连接失败。",
            "请重试；详细信息中有原因。"},
        {"network.tls_missing",
            "This installation cannot make secure connections: its TLS library is missing.",
            "Install OpenSSL (libssl) and start again.",
            "此安装无法建立安全连接：缺少 TLS 库。",
            "请安装 OpenSSL（libssl）后重新启动。"},
        {"network.tls_self_signed",
            "h.example:8080 shows a certificate that it has signed itself, so it cannot be verified.",
            "If the server is yours, add its certificate to the trusted ones (SSL_CERT_FILE).",
            "h.example:8080 出示的是自签名证书，无法验证。",
            "如果这是您自己的服务器，请把它的证书加入受信任的证书（SSL_CERT_FILE）。"},
        {"network.tls_expired",
            "The certificate of h.example:8080 has expired.",
            "Check this computer's clock; if it is right, the server needs a new certificate.",
            "h.example:8080 的证书已过期。",
            "请检查本机时钟；如果时钟正确，服务器需要新的证书。"},
        {"network.tls_not_yet_valid",
            "The certificate of h.example:8080 is not valid yet.",
            "Most likely this computer's clock is slow: set it right.",
            "h.example:8080 的证书尚未生效。",
            "很可能是本机时钟慢了：请校正时钟。"},
        {"network.tls_wrong_host",
            "The certificate shown by h.example:8080 belongs to another host.",
            "Check the address; use the name for which the certificate was made.",
            "h.example:8080 出示的证书属于另一台主机。",
            "请检查地址；使用证书所签发的名称。"},
        {"network.tls_untrusted",
            "The certificate of h.example:8080 comes from an authority that this computer does not know.",
            "Add the authority's certificate to the trusted ones (SSL_CERT_FILE).",
            "h.example:8080 的证书来自本机不认识的颁发机构。",
            "请把该颁发机构的证书加入受信任的证书（SSL_CERT_FILE）。"},
        {"network.tls",
            "No secure connection to h.example:8080 could be agreed on.",
            "Check that the address begins with the right one of http and https.",
            "无法与 h.example:8080 商定安全连接。",
            "请检查地址开头的 http 或 https 是否正确。"},
        {"auth.signed_out",
            "You are not signed in, or your sign-in has expired.",
            "Provide a valid token (NUQ_TOKEN or NUQ_TOKEN_FILE; NUQ_TOKEN_QA for the environment \"qa\").",
            "您尚未登录，或登录已过期。",
            "请提供有效的令牌（NUQ_TOKEN 或 NUQ_TOKEN_FILE；“qa”环境用 NUQ_TOKEN_QA）。"},
        {"auth.forbidden",
            "You are signed in but not allowed to do this.",
            "Ask the administrator of the project or of the service for permission.",
            "您已登录，但无权进行此操作。",
            "请向项目或服务的管理员申请权限。"},
        {"not_found",
            "The server has nothing under this name.",
            "Check the id or the code.",
            "服务器上没有这个名称的内容。",
            "请检查编号或编码。"},
        {"server.rate_limited",
            "h.example:8080 accepts no more requests until 2099-11-21 10:20.",
            "Wait until then and try again.",
            "h.example:8080 在 2099-11-21 10:20 之前不再接受请求。",
            "请等到那时再试。"},
        {"server.unavailable",
            "h.example:8080 is not available at the moment.",
            "Try again in a few minutes.",
            "h.example:8080 暂时不可用。",
            "请过几分钟再试。"},
        {"server.fault",
            "h.example:8080 reports a fault of its own (HTTP 500).",
            "Try again later; if it stays so, tell the operator of the server.",
            "h.example:8080 报告其内部故障（HTTP 500）。",
            "请稍后重试；如果仍然如此，请告知服务器的运营者。"},
        {"server.rejected",
            "h.example:8080 rejected the request: Closed {today} %1.",
            "Check the values that were given.",
            "h.example:8080 拒绝了请求：Closed {today} %1.",
            "请检查所给的值。"},
        {"server.bad_answer",
            "h.example:8080 sent an answer that cannot be read; it is damaged or cut short.",
            "Try again; if it stays so, tell the operator of the server.",
            "h.example:8080 发来的应答无法读取，已损坏或被截断。",
            "请重试；如果仍然如此，请告知服务器的运营者。"},
        {"server.html_page",
            "h.example:8080 sent a web page instead of data.",
            "Open the address in a browser: a proxy or a network may ask for a sign-in first, or the address is wrong.",
            "h.example:8080 发来的是网页而不是数据。",
            "请在浏览器中打开该地址：可能代理或网络要求先登录，或者地址有误。"},
        {"server.empty_answer",
            "h.example:8080 sent an answer without content.",
            "Try again; if it stays so, check the server address.",
            "h.example:8080 发来的应答没有内容。",
            "请重试；如果仍然如此，请检查服务器地址。"},
        {"server.partial_answer",
            "h.example:8080 sent only a part of the answer.",
            "Try again; a proxy on the way may be at fault.",
            "h.example:8080 只发来了应答的一部分。",
            "请重试；可能是途中的代理有问题。"},
        {"server.unexpected_status",
            "h.example:8080 answered with the unexpected status HTTP 500.",
            "Check the server address.",
            "h.example:8080 以意外的状态 HTTP 500 应答。",
            "请检查服务器地址。"},
        {"server.redirect_loop",
            "h.example:8080 passes the request on without end.",
            "Check the server address; a proxy or sign-in page may be at fault.",
            "h.example:8080 不停地转发请求。",
            "请检查服务器地址；可能是代理或登录页面有问题。"},
        {"server.redirect_refused",
            "h.example:8080 passes the request on to an address that must not be followed.",
            "Check the server address; from https only https may be followed.",
            "h.example:8080 把请求转到了不允许跟随的地址。",
            "请检查服务器地址；从 https 只能转到 https。"},
        {"server.wrong_shape",
            "h.example:8080 sent data of another form than this program understands.",
            "Check the server address and whether this program is up to date.",
            "h.example:8080 发来的数据格式与本程序所理解的不同。",
            "请检查服务器地址以及本程序是否为最新版本。"},
        {"server.incomplete_list",
            "h.example:8080 announced more entries than it sent.",
            "List again; the catalogue may have changed meanwhile.",
            "h.example:8080 发来的条目少于它所声明的数量。",
            "请重新列出；目录可能在此期间发生了变化。"},
        {"server.too_large",
            "The answer of h.example:8080 is larger than this program accepts.",
            "Ask for less at once, for example with a smaller page.",
            "h.example:8080 的应答超过了本程序接受的大小。",
            "请一次少取一些，例如使用较小的页。"},
        {"internal",
            "The program could not process the answer.",
            "This is a fault of the program: please report it with the details.",
            "程序无法处理该应答。",
            "这是程序的故障：请连同详细信息一起报告。"},
    };
    return rows;
}
// clang-format on

TEST(ErrorTexts, SayWhyAndWhatToTryInBothLanguages)
{
    const std::vector<ErrorCode> codes = AllErrorCodes();
    ASSERT_EQ(codes.size(), Rows().size());
    for (std::size_t at = 0; at < codes.size(); ++at) {
        const ErrorInfo error = Example(codes[at]);
        const Row& row = Rows()[at];
        EXPECT_EQ(ErrorId(error.code).toStdString(), row.id);
        EXPECT_EQ(ErrorCause(error).toStdString(), row.english);
        EXPECT_EQ(ErrorHint(error).toStdString(), row.englishHint);
        EXPECT_EQ(
            ErrorSentence(error).toStdString(), std::string("The categories could not be loaded. ") + row.english);
        const Translations translations(QStringLiteral("zh"));
        EXPECT_EQ(ErrorCause(error).toStdString(), row.chinese);
        EXPECT_EQ(ErrorHint(error).toStdString(), row.chineseHint);
        EXPECT_EQ(ErrorSentence(error).toStdString(), std::string("无法加载类别。") + row.chinese);
    }
}

TEST(ErrorTexts, CoverEveryCodeOfTheEnumeration)
{
    EXPECT_EQ(AllErrorCodes().size(), static_cast<std::size_t>(ErrorCode::InternalFault));
}

TEST(ErrorTexts, ShareNoSentenceAndNoId)
{
    for (const char* language : {"en", "zh"}) {
        const Translations translations(QString::fromLatin1(language));
        std::set<QString> sentences;
        std::set<QString> ids;
        for (const ErrorCode code : AllErrorCodes()) {
            ErrorInfo bare;
            bare.code = code;
            EXPECT_TRUE(sentences.insert(ErrorCause(bare)).second) << language << ErrorCause(bare).toStdString();
            EXPECT_TRUE(ids.insert(ErrorId(code)).second);
            EXPECT_NE(GroupOf(code), ErrorGroup::None);
        }
    }
}

TEST(ErrorTexts, NameWhatFailedForEveryOperation)
{
    std::set<QString> sentences;
    for (int operation = 0; operation <= static_cast<int>(Operation::LoadThumbnail); ++operation) {
        ErrorInfo error = Example(ErrorCode::NotFound);
        error.operation = static_cast<Operation>(operation);
        EXPECT_TRUE(sentences.insert(ErrorSentence(error)).second);
    }
    EXPECT_EQ(sentences.size(), 12u);
}

TEST(ErrorTexts, FindWordsForWhatIsNotKnown)
{
    ErrorInfo error;
    error.operation = Operation::LoadProjects;
    error.code = ErrorCode::ServerRateLimited;
    EXPECT_EQ(ErrorSentence(error).toStdString(),
        "The projects could not be loaded. The server accepts no more requests until some later time.");
    error.code = ErrorCode::ServerRejected;
    error.address = QStringLiteral("http://[::1]:80/x");
    EXPECT_EQ(ErrorSentence(error).toStdString(),
        "The projects could not be loaded. [::1]:80 rejected the request: it gave no reason.");
}

TEST(ErrorTexts, NameTheDayOfTheNextTryUnlessItIsToday)
{
    ErrorInfo error;
    error.code = ErrorCode::ServerRateLimited;
    const QDateTime noon(QDate::currentDate(), QTime(12, 0, 5));
    error.retryAt = noon;
    EXPECT_EQ(ErrorCause(error).toStdString(), "The server accepts no more requests until 12:00:05.");
    error.retryAt = noon.addDays(1);
    EXPECT_EQ(ErrorCause(error), QStringLiteral("The server accepts no more requests until %1 12:00.")
                                     .arg(noon.addDays(1).toString(QStringLiteral("yyyy-MM-dd"))));
}

TEST(ErrorTexts, RepeatWhatTheServerSaysOnce)
{
    ErrorInfo error = Example(ErrorCode::NotFound);
    EXPECT_EQ(ServerRemark(error).toStdString(), "The server says: Closed {today} %1.");
    error.code = ErrorCode::ServerRejected;
    EXPECT_EQ(ServerRemark(error), QString()) << "the cause holds it";
    error.code = ErrorCode::NotFound;
    error.serverMessage.clear();
    EXPECT_EQ(ServerRemark(error), QString());
    const Translations translations(QStringLiteral("zh"));
    EXPECT_EQ(ServerRemark(Example(ErrorCode::ServerFault)).toStdString(), "服务器的说明：Closed {today} %1.");
}

TEST(ErrorTexts, AreEmptyWithoutAnError)
{
    EXPECT_EQ(ErrorSentence(ErrorInfo()), QString());
    EXPECT_EQ(ErrorCause(ErrorInfo()), QString());
    EXPECT_EQ(ErrorHint(ErrorInfo()), QString());
    EXPECT_EQ(ErrorId(ErrorCode::None), QString());
    EXPECT_EQ(GroupOf(ErrorCode::None), ErrorGroup::None);
}

} // namespace
} // namespace componentlibrary
