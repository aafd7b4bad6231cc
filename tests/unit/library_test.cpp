#include "util/library.h"

#include <gtest/gtest.h>

namespace {

controller_t usb() {
    controller_t identity;
    identity.id = 0x14100000;
    identity.vendor_id = 0x1111;
    identity.product_id = 0x2222;
    identity.serial = "SERIAL";
    identity.location_id = 0x14100000;
    return identity;
}

controller_t firewire() {
    controller_t identity;
    identity.id = 0xABCD;
    identity.firewire = true;
    identity.guid = 0xABCD;
    return identity;
}

} // namespace

TEST(ControllerIdentity, BeginsAtZero) {
    const controller_t identity;
    EXPECT_EQ(identity.id, 0U);
    EXPECT_FALSE(identity.firewire);
    EXPECT_EQ(identity.vendor_id, 0U);
    EXPECT_EQ(identity.product_id, 0U);
    EXPECT_EQ(identity.serial, "");
    EXPECT_EQ(identity.location_id, 0U);
    EXPECT_EQ(identity.guid, 0U);
}

TEST(ControllerIdentity, OfUsbIsVendorProductAndLocation) {
    controller_t other = usb();
    EXPECT_TRUE(usb() == other);
    other.vendor_id = 1;
    EXPECT_FALSE(usb() == other);
    other = usb();
    other.product_id = 1;
    EXPECT_FALSE(usb() == other);
    other = usb();
    other.location_id = 1;
    EXPECT_FALSE(usb() == other);
}

TEST(ControllerIdentity, OfUsbIgnoresKeySerialAndGuid) {
    controller_t other = usb();
    other.id = 1;
    other.serial = "ANOTHER";
    other.guid = 7;
    EXPECT_TRUE(usb() == other);
}

TEST(ControllerIdentity, OfFirewireIsTheGuidAlone) {
    controller_t other = firewire();
    other.id = 1;
    other.vendor_id = 2;
    other.product_id = 3;
    other.serial = "S";
    other.location_id = 4;
    EXPECT_TRUE(firewire() == other);
    other.guid = 1;
    EXPECT_FALSE(firewire() == other);
}

TEST(ControllerIdentity, OfTwoBusKindsIsNeverTheSame) {
    controller_t other = firewire();
    other.firewire = false;
    EXPECT_FALSE(firewire() == other);
}

TEST(ControllerIdentity, ClearedKeepsVendorAndLocation) {
    controller_t identity = usb();
    identity.firewire = true;
    identity.guid = 7;
    identity.clear();
    EXPECT_EQ(identity.vendor_id, 0x1111U);
    EXPECT_EQ(identity.location_id, 0x14100000U);
    EXPECT_FALSE(identity.firewire);
    EXPECT_EQ(identity.product_id, 0U);
    EXPECT_EQ(identity.serial, "");
    EXPECT_EQ(identity.guid, 0U);
    EXPECT_EQ(identity.id, 0U);
}

TEST(ControllerIdentity, ClearedEqualsAUsbBridgeOfProductZeroInItsPlace) {
    controller_t cleared = usb();
    cleared.clear();
    controller_t product_zero = usb();
    EXPECT_FALSE(cleared == product_zero);
    product_zero.product_id = 0;
    EXPECT_TRUE(cleared == product_zero);
}

TEST(ControllerIdentity, CopiesAllFields) {
    controller_t copy = firewire();
    copy = usb();
    EXPECT_EQ(copy.id, usb().id);
    EXPECT_FALSE(copy.firewire);
    EXPECT_EQ(copy.vendor_id, usb().vendor_id);
    EXPECT_EQ(copy.product_id, usb().product_id);
    EXPECT_EQ(copy.serial, usb().serial);
    EXPECT_EQ(copy.location_id, usb().location_id);
    EXPECT_EQ(copy.guid, 0U);
}
