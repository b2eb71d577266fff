#include "TarnNuqService/PendingReplies/VirtualSlot.h"
#include "TarnNuqService/Providers/NewUrlImageProviderAccess.h"
#include "TarnNuqService/Providers/UrlImageProviderAccess.h"

#include <QMetaMethod>
#include <gtest/gtest.h>
#include <type_traits>

using tarnnuq::ImageProvider;
using tarnnuq::IProvider;
using tarnnuq::NewUrlImageProvider;
using tarnnuq::UrlImageProvider;
using testsupport::VirtualSlot;

namespace {

using AnyProvider = IProvider<std::wstring, std::shared_ptr<QImage>>;

/// Reaches the protected operations of a provider.
struct Protected : UrlImageProvider
{
    static std::ptrdiff_t SlotOfDisconnectNotify() { return VirtualSlot(&Protected::disconnectNotify); }
};

/// A provider of a user's own, for other types.
struct LengthProvider : IProvider<int, double>
{
    using IProvider::IProvider;
    void Provide(int key) override { provided = key * 0.5; }
    double provided = 0;
};

/// An image provider of a user's own, for another key.
struct NumberedImages : ImageProvider<int>
{
    using ImageProvider::ImageProvider;
    void Provide(int key) override { asked = key; }
    int asked = 0;
};

} // namespace

static_assert(std::is_base_of_v<QObject, AnyProvider>);
static_assert(std::is_base_of_v<AnyProvider, ImageProvider<std::wstring>>);
static_assert(std::is_base_of_v<ImageProvider<std::wstring>, UrlImageProvider>);
static_assert(std::is_abstract_v<ImageProvider<std::wstring>> && std::is_abstract_v<AnyProvider>);
static_assert(std::has_virtual_destructor_v<NewUrlImageProvider>);
static_assert(!std::is_base_of_v<QObject, NewUrlImageProvider>);
static_assert(!std::is_default_constructible_v<NewUrlImageProvider> && !std::is_destructible_v<NewUrlImageProvider>);
static_assert(!std::is_copy_constructible_v<NewUrlImageProvider> && !std::is_copy_assignable_v<NewUrlImageProvider>);
static_assert(sizeof(UrlImageProvider) == sizeof(QObject) + sizeof(std::shared_ptr<QNetworkAccessManager>));
static_assert(sizeof(NewUrlImageProvider) == sizeof(void*) + sizeof(std::shared_ptr<QNetworkAccessManager>));

TEST(ProviderLayoutTest, ProvideIsTheFirstVirtualOperationBehindThoseOfQObject)
{
    EXPECT_EQ(VirtualSlot(&UrlImageProvider::metaObject), 0);
    EXPECT_EQ(Protected::SlotOfDisconnectNotify(), 11);
    EXPECT_EQ(VirtualSlot(&AnyProvider::Provide), 12);
    EXPECT_EQ(VirtualSlot(&ImageProvider<std::wstring>::Provide), 12);
    EXPECT_EQ(VirtualSlot(&UrlImageProvider::Provide), 12);
}

TEST(ProviderLayoutTest, ImageFilesAreProvidedByAPlainOperation)
{
    EXPECT_EQ(VirtualSlot(&NewUrlImageProvider::ProvideImageFile), -1);
}

TEST(ProviderLayoutTest, TheMetaObjectHasOneSignalAndNothingElse)
{
    const QMetaObject& meta = UrlImageProvider::staticMetaObject;
    EXPECT_STREQ(meta.className(), "tarnnuq::UrlImageProvider");
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod onProvided = meta.method(meta.methodOffset());
    EXPECT_EQ(onProvided.methodSignature(), "OnProvided(std::wstring,std::shared_ptr<QImage>)");
    EXPECT_EQ(onProvided.methodType(), QMetaMethod::Signal);
    EXPECT_EQ(onProvided.parameterNames(), (QList<QByteArray>{"url", "spImage"}));
    EXPECT_EQ(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
    EXPECT_EQ(meta.enumeratorCount(), QObject::staticMetaObject.enumeratorCount());
}

TEST(ProviderLayoutTest, ProvidersOfImagesHaveNoMetaObjectOfTheirOwn)
{
    EXPECT_EQ(&ImageProvider<std::wstring>::staticMetaObject, &QObject::staticMetaObject);
    EXPECT_EQ(NumberedImages(nullptr).metaObject(), &QObject::staticMetaObject);
}

TEST(ProviderLayoutTest, AProviderBelongsToItsParentOrToWhoMadeIt)
{
    EXPECT_EQ(UrlImageProvider(nullptr).parent(), nullptr);
    QObject parent;
    EXPECT_EQ((new UrlImageProvider(&parent))->parent(), &parent);
}

TEST(ProviderLayoutTest, EachProviderHasANetworkManagerOfItsOwnWithoutAParent)
{
    QObject parent;
    const UrlImageProvider one(&parent);
    const UrlImageProvider other(&parent);
    ASSERT_NE(tarnnuq::UrlImageProviderAccess::Manager(one), nullptr);
    EXPECT_EQ(tarnnuq::UrlImageProviderAccess::Manager(one)->parent(), nullptr);
    EXPECT_NE(tarnnuq::UrlImageProviderAccess::Manager(one), tarnnuq::UrlImageProviderAccess::Manager(other));
}

TEST(ProviderLayoutTest, TheNetworkManagerGoesWithItsProvider)
{
    std::weak_ptr<QNetworkAccessManager> manager;
    {
        const UrlImageProvider provider(nullptr);
        manager = tarnnuq::UrlImageProviderAccess::Manager(provider);
        EXPECT_FALSE(manager.expired());
    }
    EXPECT_TRUE(manager.expired());
}

TEST(ProviderLayoutTest, TheProviderOfImageFilesIsMadeOnTheFirstCallAndStays)
{
    EXPECT_EQ(tarnnuq::NewUrlImageProviderAccess::Instance(), nullptr);
    NewUrlImageProvider* const provider = NewUrlImageProvider::Get();
    ASSERT_NE(provider, nullptr);
    EXPECT_EQ(tarnnuq::NewUrlImageProviderAccess::Instance(), provider);
    EXPECT_EQ(NewUrlImageProvider::Get(), provider);
    const std::shared_ptr<QNetworkAccessManager> manager = tarnnuq::NewUrlImageProviderAccess::Manager(*provider);
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(manager->parent(), nullptr);
}

TEST(ProviderLayoutTest, UsersCanDeriveProvidersForOtherTypes)
{
    LengthProvider lengths(nullptr);
    static_cast<IProvider<int, double>&>(lengths).Provide(3);
    EXPECT_EQ(lengths.provided, 1.5);
    NumberedImages images(nullptr);
    static_cast<IProvider<int, std::shared_ptr<QImage>>&>(images).Provide(7);
    EXPECT_EQ(images.asked, 7);
}
