// An exported enclosure, from the command to the last byte on the wire.
#include "tests/enclosure/command_line.h"
#include "tests/enclosure/host_process.h"
#include "tests/enclosure/loopback.h"
#include "tests/enclosure/usbip_client.h"

#include "enclosure/dbus_transport.h"

#include <gtest/gtest.h>

namespace {

using namespace usb_builders;

constexpr std::size_t import_reply_size = 320;

class ExportCommand : public testing::Test {
protected:
    ExportCommand() {
        command("new box --serial S1 --vendor-id 0x1234");
        command("scenario box raid1");
    }

    static std::uint16_t begin() {
        const outcome made = command("export box --port 0");
        EXPECT_EQ(made.status, 0) << made.output;
        return box().at("exported").at("port").get<std::uint16_t>();
    }

    static nlohmann::json box() { return listed().at("enclosures").at(0); }

    static void expect_refused(const std::string& arguments, const std::string& says) {
        const outcome made = command(arguments);
        EXPECT_EQ(made.status, 1) << arguments << ": " << made.output;
        EXPECT_EQ(made.lines(), 1) << made.output;
        EXPECT_NE(made.output.find(says), std::string::npos) << made.output;
    }

    host_process host_;
};

TEST_F(ExportCommand, SaysHowToAttach) {
    const outcome made = command("export box --port 0");
    EXPECT_EQ(made.status, 0);
    const std::string port = std::to_string(box().at("exported").at("port").get<int>());
    EXPECT_EQ(made.output, "exported 'box' over USB/IP as 1-1 on port " + port +
                               "\n"
                               "attach it with: sudo usbip --tcp-port " +
                               port +
                               " attach --remote 127.0.0.1 --busid 1-1\n"
                               "after each restart of its chip it has to be attached again\n");
}

TEST_F(ExportCommand, IsShownAndIsNoBridgeOfTheBus) {
    EXPECT_TRUE(box().at("exported").is_null());
    begin();
    EXPECT_EQ(box().at("exported").at("busid"), "1-1");
    EXPECT_EQ(box().at("plugged"), true);
    EXPECT_EQ(box().at("array").at("state"), "in order");
    EXPECT_NE(command("list").output.find("exported as 1-1 on port "), std::string::npos);
    enclosure::dbus_transport way;
    EXPECT_TRUE(way.bridges().handles.empty());
    EXPECT_EQ(command("unexport box").output, "ended the export of 'box'\n");
    EXPECT_EQ(box().at("plugged"), false);
    EXPECT_TRUE(box().at("exported").is_null());
}

TEST_F(ExportCommand, TheDeviceAnswersAsTheChipDoes) {
    usbip_client client(begin());
    const bytes device = client.ask(import_request("1-1"), import_reply_size);
    ASSERT_EQ(device.size(), import_reply_size);
    EXPECT_EQ(part_of(device, 8 + 300, 4), (bytes{0x12, 0x34, 0x4B, 0x52}));
    const bytes identify = {0xC4, 0x03, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0};
    const bytes answers = client.ask(
        joined({bulk_out(1, wrapped(8, 512, true, identify)), bulk_in(2, 512), bulk_in(3, 13)}),
        48 + 48 + 512 + 48 + 13);
    EXPECT_EQ(part_of(answers, 48, 48), submit_reply(2, 0, 512));
    EXPECT_EQ(answers.at(96 + 510), 0xA5) << "the signature of an IDENTIFY block";
    EXPECT_EQ(part_of(answers, 608, 61), joined({submit_reply(3, 0, 13), status_wrapper(8, 0, 0)}));
}

TEST_F(ExportCommand, AWarmBootDisconnectsAndTheNextImportWaitsForTheChip) {
    const std::uint16_t port = begin();
    usbip_client client(port);
    client.ask(import_request("1-1"), import_reply_size);
    EXPECT_EQ(
        client.ask(joined({bulk_out(1, wrapped(8, 0, false, warm_boot)), bulk_in(2, 13)}), 48 + 61),
        joined({submit_reply(1, 0, 31), submit_reply(2, 0, 13), status_wrapper(8, 0, 0)}));
    EXPECT_TRUE(client.ends());
    usbip_client again(port);
    EXPECT_EQ(again.ask(import_request("1-1"), import_reply_size).size(), import_reply_size);
    EXPECT_EQ(command("warmboot box").status, 0);
    EXPECT_TRUE(again.ends());
    EXPECT_EQ(usbip_client(port).ask(import_request("1-1"), import_reply_size).size(),
              import_reply_size);
}

TEST_F(ExportCommand, OneClientHasTheDeviceAtATime) {
    const std::uint16_t port = begin();
    usbip_client first(port);
    first.ask(import_request("1-1"), import_reply_size);
    EXPECT_EQ(usbip_client(port).ask(import_request("1-1"), 8), (bytes{1, 0x11, 0, 3, 0, 0, 0, 2}));
    EXPECT_EQ(command("power-cut box").status, 0);
    EXPECT_TRUE(first.ends());
}

TEST_F(ExportCommand, TheEndOfTheExportClosesItsConnections) {
    for (const char* const ending : {"unexport box", "unplug box"}) {
        const std::uint16_t port = begin();
        usbip_client client(port);
        client.ask(import_request("1-1"), import_reply_size);
        EXPECT_EQ(command(ending).status, 0);
        EXPECT_TRUE(client.ends());
        EXPECT_THROW(usbip_client{port}, std::runtime_error);
    }
}

TEST_F(ExportCommand, BaysAndFaultsWorkMeanwhile) {
    usbip_client client(begin());
    client.ask(import_request("1-1"), import_reply_size);
    EXPECT_EQ(command("fault box fail read --port 0 --lba 0").status, 0);
    const bytes read = {0xC4, 0x01, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0};
    const bytes halted =
        client.ask(joined({bulk_out(1, wrapped(8, 512, true, read)), bulk_in(2, 512)}), 96);
    EXPECT_EQ(part_of(halted, 48, 48), submit_reply(2, -32, 0));
    EXPECT_EQ(command("pull box 1").status, 0);
    EXPECT_EQ(box().at("array").at("state"), "degraded");
    EXPECT_EQ(command("insert box 1 box-b").status, 0);
}

TEST_F(ExportCommand, WhatCannotBeDoneIsSaidInOneLine) {
    command("new wire --firewire");
    command("new other");
    expect_refused("export wire --port 0", "FireWire");
    expect_refused("export nix --port 0", "'nix'");
    expect_refused("unexport box", "not exported");
    const int port = begin();
    expect_refused("export box --port 0", "exported already");
    expect_refused("plug box", "'krenclosure unexport box' first");
    expect_refused("export other --port " + std::to_string(port ^ 1), std::to_string(port));
    expect_refused("remove box", "'box'");
    command("unexport box");
    command("plug box");
    expect_refused("export box --port 0", "'krenclosure unplug box' first");
    EXPECT_EQ(command("export box --port 65536").status, 2);
}

TEST_F(ExportCommand, APortInUseIsNamed) {
    const enclosure::file_handle other(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    ASSERT_EQ(::bind(other.get(), reinterpret_cast<sockaddr*>(&address), size), 0);
    ASSERT_EQ(::listen(other.get(), 1), 0);
    ::getsockname(other.get(), reinterpret_cast<sockaddr*>(&address), &size);
    const std::string port = std::to_string(ntohs(address.sin_port));
    expect_refused("export box --port " + port, "port " + port);
    EXPECT_FALSE(box().at("plugged").get<bool>());
}

TEST_F(ExportCommand, AnExportEndsWithTheService) {
    begin();
    EXPECT_EQ(host_.stop(), 0);
    host_.start();
    EXPECT_TRUE(box().at("exported").is_null());
    EXPECT_EQ(box().at("plugged"), false);
}

} // namespace
