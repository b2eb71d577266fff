#include "Records/ICategoryMapping.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/CustomFileReply.h"
#include "ResponseHandlers/CustomReply.h"
#include "TarnNuqService/PendingReplies/VirtualSlot.h"

#include <QMetaMethod>
#include <gtest/gtest.h>

using tarnnuq::CustomFileReply;
using tarnnuq::CustomReply;
using tarnnuq::CustomReplyBase;
using testsupport::VirtualSlot;

namespace {

using MappingsReply = CustomReply<tarnnuq::RecordList<tarnnuq::ICategoryMapping>>;
using LegendsReply = CustomReply<tarnnuq::RecordPage<tarnnuq::ILegend>>;

/// Reaches the protected operations of a pending reply.
template <typename Reply>
struct Protected : Reply
{
    static std::ptrdiff_t SlotOfTimerEvent() { return VirtualSlot(&Protected::timerEvent); }
    static std::ptrdiff_t SlotOfChildEvent() { return VirtualSlot(&Protected::childEvent); }
    static std::ptrdiff_t SlotOfCustomEvent() { return VirtualSlot(&Protected::customEvent); }
    static std::ptrdiff_t SlotOfConnectNotify() { return VirtualSlot(&Protected::connectNotify); }
    static std::ptrdiff_t SlotOfDisconnectNotify() { return VirtualSlot(&Protected::disconnectNotify); }
    static std::ptrdiff_t SlotOfPrivateHandleReply() { return VirtualSlot(&Protected::PrivateHandleReply); }
};

} // namespace

TEST(CustomReplyLayoutTest, VirtualOperationsStandInTheirOrder)
{
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::metaObject), 0);
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::qt_metacast), 1);
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::qt_metacall), 2);
    // The destructor takes 3 and 4.
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::event), 5);
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::eventFilter), 6);
    EXPECT_EQ(Protected<CustomReplyBase>::SlotOfTimerEvent(), 7);
    EXPECT_EQ(Protected<CustomReplyBase>::SlotOfChildEvent(), 8);
    EXPECT_EQ(Protected<CustomReplyBase>::SlotOfCustomEvent(), 9);
    EXPECT_EQ(Protected<CustomReplyBase>::SlotOfConnectNotify(), 10);
    EXPECT_EQ(Protected<CustomReplyBase>::SlotOfDisconnectNotify(), 11);
    EXPECT_EQ(Protected<CustomReplyBase>::SlotOfPrivateHandleReply(), 12);
}

TEST(CustomReplyLayoutTest, TypedAndFileRepliesAddNoVirtualOperation)
{
    EXPECT_EQ(Protected<MappingsReply>::SlotOfPrivateHandleReply(), 12);
    EXPECT_EQ(Protected<CustomFileReply>::SlotOfPrivateHandleReply(), 12);
}

TEST(CustomReplyLayoutTest, OtherOperationsAreNotVirtual)
{
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::SetReply), -1);
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::Error), -1);
    EXPECT_EQ(VirtualSlot(&CustomReplyBase::Finished), -1);
    EXPECT_EQ(VirtualSlot(&CustomFileReply::SetSaveFilePath), -1);
    EXPECT_EQ(VirtualSlot(&CustomFileReply::GetSaveFilePath), -1);
    EXPECT_EQ(VirtualSlot(&MappingsReply::Result), -1);
}

TEST(CustomReplyLayoutTest, TheMetaObjectHasOneSignalAndOnePrivateSlotInThisOrder)
{
    const QMetaObject& meta = CustomReplyBase::staticMetaObject;
    EXPECT_STREQ(meta.className(), "tarnnuq::CustomReplyBase");
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 2);
    const QMetaMethod finished = meta.method(meta.methodOffset());
    EXPECT_EQ(finished.methodSignature(), "Finished()");
    EXPECT_EQ(finished.methodType(), QMetaMethod::Signal);
    const QMetaMethod handleReply = meta.method(meta.methodOffset() + 1);
    EXPECT_EQ(handleReply.methodSignature(), "HandleReply()");
    EXPECT_EQ(handleReply.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(handleReply.access(), QMetaMethod::Private);
    EXPECT_EQ(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    EXPECT_EQ(meta.enumeratorCount(), QObject::staticMetaObject.enumeratorCount());
}

TEST(CustomReplyLayoutTest, TypedAndFileRepliesHaveTheMetaObjectOfTheBase)
{
    EXPECT_EQ(MappingsReply().metaObject(), &CustomReplyBase::staticMetaObject);
    EXPECT_EQ(LegendsReply().metaObject(), &CustomReplyBase::staticMetaObject);
    EXPECT_EQ(CustomFileReply().metaObject(), &CustomReplyBase::staticMetaObject);
    EXPECT_EQ(CustomReply<int>().metaObject(), &CustomReplyBase::staticMetaObject);
}

TEST(CustomReplyLayoutTest, PendingRepliesBelongToWhoMadeThem)
{
    EXPECT_EQ(MappingsReply().parent(), nullptr);
    EXPECT_EQ(CustomFileReply().parent(), nullptr);
    QObject parent;
    EXPECT_EQ((new MappingsReply(&parent))->parent(), &parent);
    EXPECT_EQ((new CustomFileReply(&parent))->parent(), &parent);
}

TEST(CustomReplyLayoutTest, ANewPendingReplyHasNoErrorAndNoResult)
{
    EXPECT_EQ(MappingsReply().Error(), L"");
    EXPECT_TRUE(MappingsReply().Result().empty());
    EXPECT_TRUE(LegendsReply().Result().List.empty());
    EXPECT_EQ(LegendsReply().Result().TotalCount, 0);
    EXPECT_EQ(CustomReply<int>().Result(), 0);
    EXPECT_EQ(CustomFileReply().GetSaveFilePath(), L"");
}
