#include "support/FakeDocument.h"
#include "support/FakeDocumentEventArgs.h"
#include "support/FakeUiDocument.h"
#include "support/RecordingHost.h"
#include "zept/IUiDocumentViewManager.h"

#include <gtest/gtest.h>

using testsupport::RecordingHost;
using zept::IUiDocumentViewManager;

TEST(TheDocumentViews, AreTheHosts)
{
    RecordingHost host;
    EXPECT_EQ(IUiDocumentViewManager::Get(), &host.documentViews);
}

TEST(TheDocumentViews, AreMissingWithoutAHost)
{
    EXPECT_EQ(IUiDocumentViewManager::Get(), nullptr);
}

TEST(TheDocumentViews, AreMissingWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::documentViews);
    EXPECT_EQ(IUiDocumentViewManager::Get(), nullptr);
}

TEST(TheDocumentViews, LeadToTheDocument)
{
    RecordingHost host;
    testsupport::FakeDocument document;
    testsupport::FakeUiDocument shown;
    shown.document = &document;
    host.documentViews.current = &shown;
    EXPECT_EQ(IUiDocumentViewManager::Get()->GetCurrentUiDocument()->GetDocument(), &document);
}

TEST(ADocumentEvent, NamesItsTypeAndDocument)
{
    testsupport::FakeDocument document;
    testsupport::FakeDocumentEventArgs event;
    event.eventType = 5;
    event.document = &document;
    const zept::IDocumentEventArgs& args = event;
    EXPECT_EQ(args.GetEventType(), 5);
    EXPECT_EQ(event.documentQuestions, 0);
    EXPECT_EQ(args.GetDocument(), &document);
    EXPECT_EQ(event.documentQuestions, 1);
}
