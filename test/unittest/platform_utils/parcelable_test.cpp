// Parcelables in a parcel: the presence word, what stays when marshalling fails, the strong variant and reading
// them back.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

using Zelkon::BytesFromHex;

class Sample : public Parcelable {
public:
    Sample(int32_t value, bool asRemote = false, bool marshals = true) :
        Parcelable(asRemote), value_(value), marshals_(marshals)
    {
    }

    bool Marshalling(Parcel& parcel) const override { return parcel.WriteInt32(value_) && marshals_; }

    static Sample* Unmarshalling(Parcel& parcel)
    {
        int32_t value = 0;
        return parcel.ReadInt32(value) ? new Sample(value) : nullptr;
    }

    int32_t value_;

private:
    bool marshals_;
};

TEST(ParcelableTest, WriteParcelableKeepsAPlainRecordAndWithdrawsARemoteOne)
{
    const Sample plain(42);
    const Sample plainFailing(42, false, false);
    const Sample remote(42, true);
    const Sample remoteFailing(42, true, false);
    const struct {
        std::string name;
        const Parcelable* object;
        bool ok;
        std::string hex;
    } cases[] = {
        {"null", nullptr, true, "ee00000000000000"},
        {"plain", &plain, true, "ee000000010000002a000000"},
        {"plain failing keeps what it wrote", &plainFailing, false, "ee000000010000002a000000"},
        {"remote", &remote, true, "ee000000010000002a000000"},
        {"remote failing is withdrawn", &remoteFailing, false, "ee000000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        ASSERT_TRUE(parcel.WriteInt32(0xEE));
        EXPECT_EQ(parcel.WriteParcelable(c.object), c.ok);
        EXPECT_EQ(BytesOf(parcel), BytesFromHex(c.hex));
        if (c.object != nullptr) {
            EXPECT_FALSE(c.object->TestBehavior(Parcelable::HOLD_OBJECT));
        }
    }
}

TEST(ParcelableTest, WriteStrongParcelableMarksTheObjectHeld)
{
    sptr<Sample> object = sptr<Sample>::MakeSptr(7);
    Parcel parcel;
    EXPECT_TRUE(parcel.WriteStrongParcelable(object));
    EXPECT_TRUE(object->TestBehavior(Parcelable::HOLD_OBJECT));
    EXPECT_EQ(BytesOf(parcel), BytesFromHex("0100000007000000"));
    EXPECT_EQ(object->GetSptrRefCount(), 1);
}

TEST(ParcelableTest, ReadingBackNeedsANonZeroPresenceWord)
{
    const struct {
        std::string name;
        std::string hex;
        bool present;
    } cases[] = {
        {"present", "010000002a000000", true},        {"any non-zero word means present", "ffffffff2a000000", true},
        {"absent", "000000002a000000", false},        {"nothing", "", false},
        {"present but cut short", "01000000", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel plainParcel;
        LoadBytes(plainParcel, BytesFromHex(c.hex));
        Sample* plain = plainParcel.ReadParcelable<Sample>();
        EXPECT_EQ(plain != nullptr, c.present);
        if (plain != nullptr) {
            EXPECT_EQ(plain->value_, 42);
        }
        delete plain;

        Parcel strongParcel;
        LoadBytes(strongParcel, BytesFromHex(c.hex));
        sptr<Sample> strong = strongParcel.ReadStrongParcelable<Sample>();
        EXPECT_EQ(strong != nullptr, c.present);
        if (strong != nullptr) {
            EXPECT_EQ(strong->value_, 42);
            EXPECT_EQ(strong->GetSptrRefCount(), 1);
        }
    }
}

} // namespace
} // namespace OHOS
