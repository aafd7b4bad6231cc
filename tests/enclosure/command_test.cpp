// The service and its command as people use them.
#include "tests/enclosure/command_line.h"
#include "tests/enclosure/host_process.h"
#include "tests/enclosure/private_bus.h"

#include "enclosure/bridge_access.h"
#include "enclosure/dbus_transport.h"
#include "enclosure/problem.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <atomic>
#include <chrono>
#include <fstream>
#include <thread>

namespace {

using namespace std::chrono_literals;

outcome service_again() {
    return run(KRENCLOSURED);
}

class Command : public testing::Test {
protected:
    // One line and success.
    static void expect_done(const std::string& arguments, const std::string& says) {
        const outcome made = command(arguments);
        EXPECT_EQ(made.status, 0) << arguments << ": " << made.output;
        EXPECT_EQ(made.lines(), 1) << made.output;
        EXPECT_NE(made.output.find(says), std::string::npos) << made.output;
    }

    // One line that names the thing, and status 1.
    static void expect_refused(const std::string& arguments, const std::string& names) {
        const outcome made = command(arguments);
        EXPECT_EQ(made.status, 1) << arguments << ": " << made.output;
        EXPECT_EQ(made.lines(), 1) << made.output;
        EXPECT_EQ(made.output.find("krenclosure: "), 0U) << made.output;
        EXPECT_NE(made.output.find(names), std::string::npos) << made.output;
    }

    host_process host_;
};

TEST_F(Command, EveryChangePrintsOneLine) {
    expect_done("new box --serial S1 --vendor-id 0x1234 --location 0x81000000", "'box'");
    expect_done("disk a --size 2TB --model 'My Disk' --serial 123", "3906250000 sectors");
    expect_done("disk b --size 1000000 --addressing 28", "'b'");
    expect_done("insert box 0 a", "bay 0");
    expect_done("insert box 1 b", "bay 1");
    expect_done("scenario box raid1", "raid1");
    expect_done("plug box", "0x4B520001");
    expect_done("rate box 50", "50 MB/s");
    expect_done("rate box unlimited", "without limit");
    expect_done("fault box fail read --port 0 --lba 5", "fail read");
    expect_done("fault box clear", "1 fault");
    expect_done("warmboot box", "restarted");
    expect_done("power-cut box", "cut the power");
    expect_done("pull box 1", "'b'");
    expect_done("unplug box", "unplugged");
    expect_done("remove b", "removed disk");
    expect_done("remove box", "removed enclosure");
}

TEST_F(Command, TheListSaysWhatThereIs) {
    command("new wire --firewire --guid 0x1122334455667788");
    command("new box --location 0x81000000 --serial S1");
    command("disk a --size 2TB --serial 123");
    command("insert box 1 a");
    command("plug box");
    const nlohmann::json desk = listed();
    const nlohmann::json& box = desk.at("enclosures").at(0);
    EXPECT_EQ(box.at("name"), "box");
    EXPECT_EQ(box.at("location"), static_cast<std::int32_t>(0x81000000));
    EXPECT_EQ(box.at("serial"), "S1");
    EXPECT_EQ(box.at("handle"), 0x4B520001);
    EXPECT_TRUE(box.at("bays").at(0).is_null());
    EXPECT_EQ(box.at("bays").at(1).at("serial"), "123");
    EXPECT_EQ(box.at("array").at("state"), "plain");
    EXPECT_EQ(desk.at("enclosures").at(1).at("guid"), 0x1122334455667788U);
    const std::string table = command("list").output;
    EXPECT_NE(table.find("0x81000000"), std::string::npos);
    EXPECT_NE(table.find("2.0 TB"), std::string::npos);
}

TEST_F(Command, WhatCannotBeDoneIsSaidInOneLine) {
    expect_refused("plug nix", "'nix'");
    expect_refused("new 'a b'", "'a b'");
    expect_refused("new ../up", "'../up'");
    expect_refused("disk a --size 2XB", "2XB");
    expect_refused("disk a --identify /dev/null", "/dev/null");
    expect_refused("insert nix 0 a", "'nix'");
    expect_refused("remove nix", "'nix'");
    expect_refused("new box --vendor-id 65536", "vendor id");
    expect_refused("new box --location 0x1FFFFFFFF", "location");
    command("new box");
    expect_refused("new box", "'box'");
    expect_refused("unplug box", "'box'");
    expect_refused("rate box fast", "'fast'");
    expect_refused("fault box flip flush", "flush");
    expect_refused("fault box tear read", "only a write");
}

TEST_F(Command, WrongUseIsStatus2) {
    EXPECT_EQ(command("").status, 2);
    EXPECT_EQ(command("bogus").status, 2);
    EXPECT_EQ(command("insert box 2 a").status, 2);
    EXPECT_EQ(command("scenario box bogus").status, 2);
    EXPECT_EQ(command("disk a").status, 2);
    EXPECT_EQ(command("disk a --size 2TB --identify file").status, 2);
}

TEST_F(Command, HelpAndVersionAreStatus0) {
    EXPECT_EQ(command("--help").status, 0);
    EXPECT_EQ(command("--version").status, 0);
    EXPECT_EQ(run(KRENCLOSURED " --version").status, 0);
}

TEST_F(Command, TheDemoSetIsMadeOnce) {
    EXPECT_EQ(command("demo").status, 0);
    const nlohmann::json first = listed();
    EXPECT_EQ(first.at("enclosures").size(), 3U);
    for (const auto& one : first.at("enclosures")) {
        EXPECT_FALSE(one.at("handle").is_null());
    }
    EXPECT_EQ(command("demo").status, 0);
    EXPECT_EQ(listed(), first);
}

TEST_F(Command, ARawBlockIsServedAsItIs) {
    enclosure::disk_label label;
    label.sectors = 5000;
    enclosure::identify_block block = enclosure::build_identify(label);
    block[510] = 0;
    const temporary_folder folder;
    const std::string file = folder.path() / "block";
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(block.data()), block.size());
    expect_done("disk raw --identify " + file, "5000 sectors");
    EXPECT_FALSE(listed().at("shelf").at(0).at("present").get<bool>());
}

TEST_F(Command, AMissingImageIsListed) {
    command("new box");
    command("disk a --size 2TB");
    command("insert box 0 a");
    EXPECT_EQ(host_.stop(), 0);
    std::filesystem::remove(host_.folder() / "disks" / "a.img");
    host_.start();
    const std::string table = command("list").output;
    EXPECT_NE(table.find("counts as absent"), std::string::npos) << table;
    EXPECT_FALSE(listed().at("enclosures").at(0).at("bays").at(0).at("present").get<bool>());
}

TEST_F(Command, ASecondServiceSaysThatTheNameIsTaken) {
    const outcome second = service_again();
    EXPECT_EQ(second.status, 1);
    EXPECT_EQ(second.lines(), 1) << second.output;
    EXPECT_NE(second.output.find(enclosure::bus::service), std::string::npos);
}

TEST_F(Command, SigtermEndsTheServiceCleanly) {
    EXPECT_EQ(host_.stop(), 0);
}

TEST_F(Command, ACopyGoesOnInRealTimeAndSurvivesARestart) {
    command("new box");
    command("scenario box rebuild");
    command("plug box");
    const auto current = [] {
        return listed().at("enclosures").at(0).at("copy").at("current").get<std::uint64_t>();
    };
    std::uint64_t seen = 0;
    while (seen == 0) {
        seen = current();
    }
    EXPECT_EQ(host_.stop(), 0);
    host_.start();
    EXPECT_GE(current(), seen);
    EXPECT_EQ(listed().at("enclosures").at(0).at("copy").at("running"), true);
}

TEST_F(Command, AnAnswerThatTakesTimeHoldsUpNobodyElse) {
    command("new box");
    command("scenario box raid1");
    command("plug box");
    command("fault box delay read --delay 3000");
    const std::uint32_t handle = host_.handle_of("box");
    std::atomic<bool> answered{false};
    std::atomic<int> status{-1};
    std::thread slow([&] {
        enclosure::dbus_transport way;
        enclosure::bridge_access access(way);
        std::array<std::uint8_t, 512> sector{};
        access.openConnection(handle);
        status = access.krGetRaidInfoFW(handle, sector.data(), 512, 0, 0);
        answered = true;
    });
    for (int i = 0; i < 20; ++i) {
        host_.client().describe();
    }
    EXPECT_FALSE(answered);
    slow.join();
    EXPECT_EQ(status, 0);
}

TEST_F(Command, ADiskThatHangsLeavesItsCallerWithoutAnswerAndNobodyElse) {
    command("new box");
    command("scenario box raid1");
    command("plug box");
    expect_done("fault box time-out read --port 0 --lba 7", "time-out read");
    const auto connection = sdbus::createSessionBusConnection();
    const auto bridge = sdbus::createProxy(*connection, enclosure::bus::service,
                                           enclosure::bus::bridge_path(host_.handle_of("box")));
    const auto read_sector_7 = [&](std::chrono::milliseconds limit) {
        std::tuple<std::uint8_t, std::vector<std::uint8_t>, std::vector<std::uint8_t>> reply;
        bridge->callMethod("Execute")
            .onInterface(enclosure::bus::bridge_interface)
            .withTimeout(limit)
            .withArguments(std::vector<std::uint8_t>{0x28, 0, 0, 0, 0, 7, 0, 0, 1, 0},
                           std::uint32_t{512}, std::vector<std::uint8_t>{})
            .storeResultsTo(std::get<0>(reply), std::get<1>(reply), std::get<2>(reply));
        return std::get<2>(reply).size();
    };
    for (int i = 0; i < 3; ++i) {
        try {
            read_sector_7(300ms);
            ADD_FAILURE() << "answered";
        } catch (const sdbus::Error& error) {
            EXPECT_EQ(error.getName(), "org.freedesktop.DBus.Error.Timeout") << error.getMessage();
        }
    }
    expect_done("fault box clear", "1 fault");
    EXPECT_EQ(read_sector_7(30s), 512U);
}

TEST_F(Command, HostileRequestsAreRefused) {
    command("new box");
    command("plug box");
    const auto connection = sdbus::createSessionBusConnection();
    const auto bridge = sdbus::createProxy(*connection, enclosure::bus::service,
                                           enclosure::bus::bridge_path(host_.handle_of("box")));
    const auto send = [&](std::size_t cdb, std::uint32_t allocation, std::size_t data) {
        bridge->callMethod("Execute")
            .onInterface(enclosure::bus::bridge_interface)
            .withArguments(std::vector<std::uint8_t>(cdb), allocation,
                           std::vector<std::uint8_t>(data));
    };
    EXPECT_THROW(send(17, 0, 0), sdbus::Error);
    EXPECT_THROW(send(6, 65537, 0), sdbus::Error);
    EXPECT_THROW(send(6, 0, 65537), sdbus::Error);
    EXPECT_NO_THROW(send(0, 0, 0));
    using enclosure::problem;
    enclosure::service_client& client = host_.client();
    EXPECT_THROW(client.add_disk("../up", {}), problem);
    EXPECT_THROW(client.add_disk("a", {}), problem); // a disk of no sectors
    EXPECT_THROW(client.add_enclosure({{"Nonsense", sdbus::Variant(1)}}), problem);
    EXPECT_THROW(client.add_enclosure({{"Name", sdbus::Variant(1)}}), problem);
    EXPECT_THROW(client.set_rate("box", ~std::uint64_t{0}), problem);
    EXPECT_THROW(client.insert("box", 9, "a"), problem);
    EXPECT_THROW(client.arrange("box", "bogus"), problem);
    EXPECT_TRUE(host_.bus().service_runs());
}

TEST(WithoutABus, ServiceAndCommandSaySoInOneLine) {
    const bus_address nowhere("unix:path=/nonexistent/bus");
    for (const outcome& made : {command("list"), service_again()}) {
        EXPECT_EQ(made.status, 1);
        EXPECT_EQ(made.lines(), 1) << made.output;
        EXPECT_NE(made.output.find("no session bus"), std::string::npos) << made.output;
    }
}

TEST(WithoutAService, TheCommandSaysHowToStartIt) {
    const outcome made = command("list");
    EXPECT_EQ(made.status, 1);
    EXPECT_EQ(made.lines(), 1) << made.output;
    EXPECT_NE(made.output.find("start 'krenclosured'"), std::string::npos) << made.output;
}

TEST(WithoutABusAnyMore, TheServiceEnds) {
    private_bus bus;
    const bus_address there(bus.address());
    host_process host;
    bus.end();
    EXPECT_EQ(host.abandon(), 0);
}

} // namespace
