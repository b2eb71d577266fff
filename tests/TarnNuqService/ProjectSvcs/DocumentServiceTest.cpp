#include "TarnNuqService/ProjectSvcs/DocumentServiceAccess.h"
#include "support/FakeDocument.h"
#include "support/FakeDocumentEventArgs.h"
#include "support/FakeUiDocument.h"
#include "support/RecordingHost.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <type_traits>

using tarnnuq::DocumentService;

namespace {

/// An announcement: the signal's place in the class's own table and the document.
using Announcement = std::pair<int, zept::IDocument*>;
using Announcements = std::vector<Announcement>;

class DocumentServiceTest : public ::testing::Test
{
protected:
    DocumentServiceTest()
    {
        using Signal = void (DocumentService::*)(zept::IDocument*);
        const std::pair<int, Signal> signalsByPlace[] = {{0, &DocumentService::DocumentCreated},
            {1, &DocumentService::DocumentClosed}, {2, &DocumentService::DocumentOpened}};
        for (const auto& [place, signal] : signalsByPlace) {
            const int number = place;
            QObject::connect(&Service(), signal, &receiver,
                [this, number](zept::IDocument* named) { announcements.emplace_back(number, named); });
        }
    }

    DocumentService& Service() { return access.Service(); }

    Announcements Handle(int eventType)
    {
        announcements.clear();
        args.eventType = eventType;
        Service().HandleDocumentEvent(&args);
        return announcements;
    }

    testsupport::RecordingHost host;
    tarnnuq::DocumentServiceAccess access;
    testsupport::FakeDocument document;
    testsupport::FakeDocumentEventArgs args;
    Announcements announcements;
    QObject receiver;
};

constexpr int CreatedPlace = 0;
constexpr int ClosedPlace = 1;
constexpr int OpenedPlace = 2;

} // namespace

static_assert(std::is_base_of_v<QObject, DocumentService>);
static_assert(!std::is_constructible_v<DocumentService, QObject*> && !std::is_destructible_v<DocumentService>);
static_assert(sizeof(DocumentService) == sizeof(QObject), "no fields");

TEST_F(DocumentServiceTest, SignalsStandInAFixedOrder)
{
    const QMetaObject& metaObject = DocumentService::staticMetaObject;
    EXPECT_STREQ(metaObject.className(), "tarnnuq::DocumentService");
    EXPECT_EQ(Service().metaObject(), &metaObject);
    const std::vector<QByteArray> signatures{
        "DocumentCreated(zept::IDocument*)", "DocumentClosed(zept::IDocument*)", "DocumentOpened(zept::IDocument*)"};
    ASSERT_EQ(metaObject.methodCount() - metaObject.methodOffset(), 3);
    for (int place = 0; place < 3; ++place) {
        const QMetaMethod method = metaObject.method(metaObject.methodOffset() + place);
        EXPECT_EQ(method.methodType(), QMetaMethod::Signal);
        EXPECT_EQ(method.methodSignature(), signatures[static_cast<std::size_t>(place)]);
        EXPECT_EQ(method.parameterNames(), QList<QByteArray>{"document"});
    }
    EXPECT_EQ(metaObject.propertyCount(), metaObject.propertyOffset());
}

TEST_F(DocumentServiceTest, ANullEventIsIgnored)
{
    Service().HandleDocumentEvent(nullptr);
    EXPECT_TRUE(announcements.empty());
}

TEST_F(DocumentServiceTest, AnnouncesEachKindOfEventOnce)
{
    args.document = &document;
    EXPECT_EQ(Handle(0), (Announcements{{CreatedPlace, &document}}));
    EXPECT_EQ(Handle(1), (Announcements{{OpenedPlace, &document}}));
    EXPECT_EQ(Handle(5), (Announcements{{ClosedPlace, &document}}));
    EXPECT_EQ(args.documentQuestions, 3);
}

TEST_F(DocumentServiceTest, PassesANullDocumentOn)
{
    EXPECT_EQ(Handle(0), (Announcements{{CreatedPlace, nullptr}}));
    EXPECT_EQ(Handle(1), (Announcements{{OpenedPlace, nullptr}}));
    EXPECT_EQ(Handle(5), (Announcements{{ClosedPlace, nullptr}}));
}

TEST_F(DocumentServiceTest, OtherEventsAreIgnoredAndTheirDocumentIsNotAskedFor)
{
    args.document = &document;
    for (const int eventType : {2, 3, 4, 6, 7, 100, 256, 2147483647, -1, -5, -2147483647 - 1}) {
        EXPECT_TRUE(Handle(eventType).empty()) << eventType;
    }
    EXPECT_EQ(args.documentQuestions, 0);
}

TEST_F(DocumentServiceTest, AnnouncesEveryEventAlsoForOneDocument)
{
    args.document = &document;
    const int eventTypes[] = {0, 1, 1, 5, 0};
    for (const int eventType : eventTypes) {
        args.eventType = eventType;
        Service().HandleDocumentEvent(&args);
    }
    EXPECT_EQ(announcements, (Announcements{{CreatedPlace, &document}, {OpenedPlace, &document},
                                 {OpenedPlace, &document}, {ClosedPlace, &document}, {CreatedPlace, &document}}));
}

TEST_F(DocumentServiceTest, SpiesAndQueuedReceiversGetTheDocument)
{
    QSignalSpy spy(&Service(), &DocumentService::DocumentOpened);
    zept::IDocument* queued = nullptr;
    QObject::connect(
        &Service(), &DocumentService::DocumentOpened, &receiver, [&queued](zept::IDocument* named) { queued = named; },
        Qt::QueuedConnection);
    args.document = &document;
    Handle(1);
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.front().front().value<zept::IDocument*>(), &document);
    EXPECT_EQ(queued, nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(queued, &document);
}

TEST_F(DocumentServiceTest, ReceiversByNameGetTheDocument)
{
    QSignalSpy spy(&Service(), SIGNAL(DocumentClosed(zept::IDocument*)));
    ASSERT_TRUE(spy.isValid());
    args.document = &document;
    Handle(5);
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.front().front().value<zept::IDocument*>(), &document);
}

TEST_F(DocumentServiceTest, TheCurrentDocumentIsThatOfTheActiveWindow)
{
    testsupport::FakeUiDocument window;
    window.document = &document;
    host.documentViews.current = &window;
    EXPECT_EQ(Service().GetCurrentDocument(), &document);
    window.document = nullptr;
    EXPECT_EQ(Service().GetCurrentDocument(), nullptr);
}

TEST_F(DocumentServiceTest, WithoutAnOpenWindowThereIsNoCurrentDocument)
{
    EXPECT_EQ(Service().GetCurrentDocument(), nullptr);
}

TEST_F(DocumentServiceTest, InAHostWithoutWindowsThereIsNoCurrentDocument)
{
    host.Remove(&hostsdk::HostServices::documentViews);
    EXPECT_EQ(Service().GetCurrentDocument(), nullptr);
}

TEST_F(DocumentServiceTest, EventsDoNotChangeTheCurrentDocument)
{
    args.document = &document;
    Handle(1);
    EXPECT_EQ(Service().GetCurrentDocument(), nullptr);
}
