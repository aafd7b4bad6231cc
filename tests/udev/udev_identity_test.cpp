// What a bridge is taken for, whatever its attributes say.
#include "tests/udev/heard_source.h"
#include "tests/udev/mock_bus.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class UdevIdentity : public testing::Test {
protected:
    // Of the only bridge there.
    template<class Device> bridge_identity identity(const Device& device) {
        bus_.add(device);
        bus_.add_scsi_device(device.path(), bridge_);
        bus_.add_node(device.path(), bridge_);
        return identity();
    }
    bridge_identity identity() {
        heard_source source;
        source.arrival = 0x10002;
        EXPECT_TRUE(source.listen());
        EXPECT_EQ(source.bridges.size(), 1U);
        return source.bridges.empty() ? bridge_identity() : source.bridges.front();
    }

    mock_bus bus_;
    mock_bridge bridge_;
    mock_usb_device usb_;
};

TEST_F(UdevIdentity, AUsbBridgeIsKnownByItsIdsAndItsSocket) {
    bridge_.sg = "5";
    const bridge_identity found = identity(usb_);
    EXPECT_EQ(found.handle, 0x80010005U);
    EXPECT_FALSE(found.firewire);
    EXPECT_EQ(found.vendor_id, 0x1209U);
    EXPECT_EQ(found.product_id, 0x4B52U);
    EXPECT_EQ(found.location_id, 0x02140000);
    EXPECT_EQ(found.serial, "KR-0042");
    EXPECT_EQ(found.guid, 0U);
    EXPECT_EQ(found.name, "KESTREL Duo");
}

TEST_F(UdevIdentity, AFireWireBridgeIsKnownByItsGuid) {
    const bridge_identity found = identity(mock_firewire_device());
    EXPECT_TRUE(found.firewire);
    EXPECT_EQ(found.guid, 0xF122334455667788U);
    EXPECT_EQ(found.vendor_id, 0U);
    EXPECT_EQ(found.location_id, 0);
    EXPECT_EQ(found.serial, "");
    EXPECT_EQ(found.name, "KESTREL Duo");
}

TEST_F(UdevIdentity, VendorAndProductAreJoinedAsTheyAre) {
    bridge_.vendor = "KESTREL-";
    bridge_.model = "RAID  DUO       ";
    EXPECT_EQ(identity(usb_).name, "KESTREL-RAID  DUO");
}

TEST_F(UdevIdentity, AShortVendorKeepsItsColumns) {
    bridge_.vendor = "KR";
    bridge_.model = "Duo";
    EXPECT_EQ(identity(usb_).name, "KR      Duo");
}

TEST_F(UdevIdentity, MissingAttributesAreZeroOrEmpty) {
    bridge_.vendor.clear();
    bridge_.model.clear();
    usb_.vendor.clear();
    usb_.product.clear();
    usb_.serial.clear();
    const bridge_identity found = identity(usb_);
    EXPECT_EQ(found.vendor_id, 0U);
    EXPECT_EQ(found.product_id, 0U);
    EXPECT_EQ(found.serial, "");
    EXPECT_EQ(found.name, "");
}

TEST_F(UdevIdentity, AFireWireDeviceWithoutAGuidHasNone) {
    mock_firewire_device device;
    device.guid.clear();
    EXPECT_EQ(identity(device).guid, 0U);
}

TEST_F(UdevIdentity, AbsurdNumbersAreZero) {
    usb_.vendor = "12345";
    usb_.product = "-1";
    const bridge_identity found = identity(usb_);
    EXPECT_EQ(found.vendor_id, 0U);
    EXPECT_EQ(found.product_id, 0U);
}

TEST_F(UdevIdentity, TextThatIsNotAsciiIsEmpty) {
    identity(usb_);
    bus_.set_attribute(usb_.path(), "serial", "KR\xFF\xFE\n");
    bus_.set_attribute(mock_bus::scsi_path(usb_.path(), bridge_), "model", "Duo\x1B[2J\n");
    const bridge_identity found = identity();
    EXPECT_EQ(found.serial, "");
    EXPECT_EQ(found.name, "KESTREL");
}

TEST_F(UdevIdentity, EndlessTextIsEmpty) {
    identity(usb_);
    bus_.set_attribute(usb_.path(), "serial", std::string(1U << 20U, 'S'));
    EXPECT_EQ(identity().serial, "");
}

TEST_F(UdevIdentity, TheLongestSerialThatCountsIsKept) {
    identity(usb_);
    bus_.set_attribute(usb_.path(), "serial", std::string(255, 'S') + "\n");
    EXPECT_EQ(identity().serial, std::string(255, 'S'));
    bus_.set_attribute(usb_.path(), "serial", std::string(256, 'S') + "\n");
    EXPECT_EQ(identity().serial, "");
}

TEST_F(UdevIdentity, AnAttributeThatCannotBeReadIsEmpty) {
    identity(usb_);
    bus_.spoil_attribute(usb_.path(), "serial");
    EXPECT_EQ(identity().serial, "");
}

} // namespace
