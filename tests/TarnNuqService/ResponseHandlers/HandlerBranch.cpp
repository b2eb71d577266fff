#include "TarnNuqService/ResponseHandlers/HandlerBranch.h"

#include "Records/ICategory.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/CategoriesResponseHandler.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"

#include <gtest/gtest.h>

namespace testsupport {

namespace {

std::wstring HandleWithInterface(QNetworkReply* reply)
{
    std::wstring error = L"stale";
    const auto page = tarnnuq::PagedLegendsResponseHandler().Handle(reply, error);
    EXPECT_TRUE(page.List.empty());
    EXPECT_EQ(page.TotalCount, 0);
    return error;
}

std::wstring HandleWithBase(QNetworkReply* reply)
{
    std::wstring error = L"stale";
    EXPECT_TRUE(tarnnuq::CategoriesResponseHandler().Handle(reply, error).empty());
    return error;
}

} // namespace

const std::vector<HandlerBranch>& HandlerBranches()
{
    using Operation = LogRecord::Operation;
    static const std::vector<HandlerBranch> branches{
        {"Interface", HandleWithInterface,
            [](int status, const QString& message) {
                return QStringLiteral("request error:http code - ") + QString::number(status) +
                       QStringLiteral(", message - ") + message;
            },
            [](const QString& url, const QString& requestError) {
                return LogRecord{
                    Operation::Error, {QStringLiteral("fail to get response from ") + url + u'.' + requestError}};
            },
            [](const QString& url, const QString& body) {
                return LogRecord{Operation::Info, {QStringLiteral("succeed to get response from ") + url +
                                                      QStringLiteral(". response body:") + body}};
            }},
        {"Base", HandleWithBase,
            [](int status, const QString& message) {
                return QStringLiteral("request error: http code - ") + QString::number(status) +
                       QStringLiteral(", message - ") + message;
            },
            [](const QString& url, const QString& requestError) {
                return LogRecord{Operation::Error,
                    {QStringLiteral("fail to get response from ") + url + QStringLiteral("\r\n"), requestError}};
            },
            [](const QString& url, const QString& body) {
                return LogRecord{
                    Operation::Info, {QStringLiteral("succeed to get response from ") + url + QStringLiteral("\r\n"),
                                         QStringLiteral("response body:") + body}};
            }}};
    return branches;
}

} // namespace testsupport
