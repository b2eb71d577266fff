#pragma once

#include "TarnNuqService/CategorySvcs/CategoryBody.h"
#include "TarnNuqService/CategorySvcs/PublicCategoryServiceAccess.h"
#include "TarnNuqService/EnvSvcs/EnvironmentFolder.h"
#include "support/LoopbackServer.h"
#include "support/RecordingHost.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

namespace testsupport {

/// A public category service whose endpoint is a server on this machine, and the lists that it announces.
class PublicCategoryFixture : public ::testing::Test
{
protected:
    using Categories = QList<tarnnuq::ICategory>;

    /// @param endPoint what stands between the server's address and the service's paths
    explicit PublicCategoryFixture(const QString& endPoint = QStringLiteral("/api"))
    {
        host.appService.appDir = folder.AppDir();
        folder.WriteEndPoints(server.BaseUrl() + endPoint, QString());
        access = std::make_unique<tarnnuq::PublicCategoryServiceAccess>();
        QObject::connect(&Service(), &tarnnuq::PublicCategoryService::OnCategoriesUpdated,
            [this](const Categories& categories) { announced.push_back(categories); });
        host.logger.Clear();
    }

    tarnnuq::PublicCategoryService& Service() { return access->Service(); }

    /// Requests the categories and runs until this answer has been announced.
    /// @return the announced list
    Categories Request(const ScriptedResponse& response, const QString& keyword = {})
    {
        const std::size_t before = announced.size();
        server.Enqueue(response);
        Service().RequestCategories(keyword);
        EXPECT_TRUE(WaitFor([this, before] { return announced.size() > before; }));
        EXPECT_EQ(announced.size(), before + 1);
        return announced.empty() ? Categories() : announced.back();
    }

    Categories Request(const std::vector<CategoryRow>& rows)
    {
        return Request(ScriptedResponse::Json(CategoryBody(rows)));
    }

    EnvironmentFolder folder;
    LoopbackServer server;
    RecordingHost host;
    std::vector<Categories> announced;
    std::unique_ptr<tarnnuq::PublicCategoryServiceAccess> access;
};

} // namespace testsupport
