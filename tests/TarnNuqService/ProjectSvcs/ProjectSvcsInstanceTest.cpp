#include "ProjectSvcs/DocumentService.h"
#include "ProjectSvcs/IProjectManager.h"
#include "support/FakeDocument.h"
#include "support/FakeDocumentEventArgs.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

using tarnnuq::DocumentService;
using tarnnuq::IProjectManager;

TEST(ProjectSvcsInstanceTest, ThereIsOneProjectManagerWithoutAParent)
{
    IProjectManager* manager = IProjectManager::Get();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(IProjectManager::Get(), manager);
    EXPECT_EQ(manager->parent(), nullptr);
    EXPECT_EQ(manager->GetDebugProjectId(), L"");
}

TEST(ProjectSvcsInstanceTest, TheProjectManagerAsksTheHostThatIsThere)
{
    IProjectManager* manager = IProjectManager::Get();
    EXPECT_EQ(manager->GetCurrentProjectId(), L"");
    testsupport::RecordingHost host;
    host.collaborationSettings.workingProjectId = L"working";
    EXPECT_EQ(manager->GetCurrentProjectId(), L"working");
}

TEST(ProjectSvcsInstanceTest, ThereIsOneDocumentServiceWithoutAParent)
{
    DocumentService* service = DocumentService::Get();
    ASSERT_NE(service, nullptr);
    EXPECT_EQ(DocumentService::Get(), service);
    EXPECT_EQ(service->parent(), nullptr);
}

TEST(ProjectSvcsInstanceTest, TheDocumentServiceAnnouncesToEveryoneInTheProcess)
{
    testsupport::FakeDocument document;
    testsupport::FakeDocumentEventArgs args;
    args.document = &document;
    zept::IDocument* created = nullptr;
    QObject::connect(DocumentService::Get(), &DocumentService::DocumentCreated,
        [&created](zept::IDocument* named) { created = named; });
    DocumentService::Get()->HandleDocumentEvent(&args);
    EXPECT_EQ(created, &document);
}
