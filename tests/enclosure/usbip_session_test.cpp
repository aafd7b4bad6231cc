// One client of an exported enclosure, packet by packet.
#include "enclosure/usbip_session.h"

#include "enclosure/vendor_commands.h"

#include "tests/enclosure/exported_desk.h"
#include "tests/enclosure/usb_builders.h"

#include <gtest/gtest.h>

#include <random>

namespace enclosure {
namespace {

using namespace usb_builders;

constexpr std::uint32_t import_reply_size = 320;

class UsbipSession : public testing::Test {
protected:
    bytes say(usbip_session& to, const bytes& packet) {
        to.receive(packet, desk_.now);
        return heard(to);
    }

    bytes say(const bytes& packet) { return say(session_, packet); }

    bytes heard(usbip_session& from) {
        bytes all;
        while (!from.output().empty()) {
            const byte_view part = from.output();
            all.insert(all.end(), part.begin(), part.end());
            from.sent(part.size(), desk_.now);
        }
        return all;
    }

    void import() { ASSERT_EQ(say(import_request("1-1")).size(), import_reply_size); }

    // Transfer 2 is answered with a sector 3 seconds later.
    void begin_slow_read() {
        import();
        fault_rule slow;
        slow.kind = fault_kind::delay;
        slow.operation = io_kind::read;
        slow.delay = std::chrono::seconds(3);
        desk_.on.add_fault("box", slow);
        const vendor_cdb read = encode({vendor_action::read_sector, 0, true, 0, 512});
        say(joined(
            {bulk_out(1, wrapped(9, 512, true, {read.begin(), read.end()})), bulk_in(2, 512)}));
    }

    void pass(moment time) {
        desk_.now += time;
        desk_.on.advance(desk_.now);
        session_.advance(desk_.now);
    }

    void expect_broken_off(const bytes& packet, const std::string& why) {
        EXPECT_EQ(say(packet), bytes());
        EXPECT_TRUE(session_.over());
        EXPECT_NE(session_.complaint().find(why), std::string::npos) << session_.complaint();
        EXPECT_FALSE(session_.wants_input());
    }

    exported_desk desk_;
    usbip_session session_{desk_.exports, desk_.now};
};

TEST_F(UsbipSession, TheListNamesWhatIsExportedAndEndsTheSession) {
    const bytes reply = say(list_request());
    EXPECT_EQ(part_of(reply, 0, 12), (bytes{1, 0x11, 0, 5, 0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(part_of(reply, 12, 5), (bytes{'/', 'b', 'o', 'x', 0}));
    EXPECT_EQ(part_of(reply, 12 + 256, 4), (bytes{'1', '-', '1', 0}));
    EXPECT_EQ(reply.size(), 12U + 312 + 4);
    EXPECT_TRUE(session_.over());
    EXPECT_EQ(session_.complaint(), "");
}

TEST_F(UsbipSession, AnImportedDeviceIsNotListed) {
    import();
    usbip_session other(desk_.exports, desk_.now);
    EXPECT_EQ(say(other, list_request()), (bytes{1, 0x11, 0, 5, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(UsbipSession, ASecondImportIsRefusedUntilTheFirstHasGone) {
    auto first = std::make_unique<usbip_session>(desk_.exports, desk_.now);
    EXPECT_EQ(say(*first, import_request("1-1")).size(), import_reply_size);
    EXPECT_EQ(say(import_request("1-1")), (bytes{1, 0x11, 0, 3, 0, 0, 0, 2}));
    EXPECT_TRUE(session_.over());
    first.reset();
    usbip_session third(desk_.exports, desk_.now);
    EXPECT_EQ(say(third, import_request("1-1")).size(), import_reply_size);
}

TEST_F(UsbipSession, AnUnknownDeviceIsRefused) {
    EXPECT_EQ(say(import_request("1-2")), (bytes{1, 0x11, 0, 3, 0, 0, 0, 4}));
    EXPECT_TRUE(session_.over());
    EXPECT_EQ(session_.complaint(), "");
}

// What a host does first: descriptors, configuration, units, then INQUIRY.
bytes first_words() {
    return joined({import_request("1-1"), control_in(1, {0x80, 6, 0, 1, 0, 0, 64, 0}, 64),
                   submit({2, 0x00010001, 0, 0, 0, {0x00, 9, 1, 0, 0, 0, 0, 0}}),
                   control_in(3, {0xA1, 0xFE, 0, 0, 0, 0, 1, 0}, 1),
                   bulk_out(4, wrapped(77, 36, true, inquiry)), bulk_in(5, 36), bulk_in(6, 13),
                   control_in(7, {0x80, 6, 0, 6, 0, 0, 10, 0}, 10)});
}

void expect_first_answers(const bytes& heard) {
    const bytes after_import(heard.begin() + import_reply_size, heard.end());
    EXPECT_EQ(part_of(after_import, 0, 48), submit_reply(1, 0, 18));
    EXPECT_EQ(part_of(after_import, 48, 4), (bytes{18, 1, 0, 2}));
    EXPECT_EQ(part_of(after_import, 66, 48), submit_reply(2, 0, 0));
    EXPECT_EQ(part_of(after_import, 114, 49), joined({submit_reply(3, 0, 1), {0}}));
    EXPECT_EQ(part_of(after_import, 163, 48), submit_reply(4, 0, 31));
    EXPECT_EQ(part_of(after_import, 211, 48), submit_reply(5, 0, 36));
    const bytes text = part_of(after_import, 211 + 48 + 8, 28);
    EXPECT_EQ(std::string(text.begin(), text.end()), "Emulated Kestrel Duo    1.0 ");
    EXPECT_EQ(part_of(after_import, 295, 61),
              joined({submit_reply(6, 0, 13), status_wrapper(77, 0, 0)}));
    EXPECT_EQ(part_of(after_import, 356, 48), submit_reply(7, -32, 0));
    EXPECT_EQ(after_import.size(), 404U);
}

TEST_F(UsbipSession, AHostGetsAsFarAsAnInquiry) {
    expect_first_answers(say(first_words()));
    EXPECT_FALSE(session_.over());
}

TEST_F(UsbipSession, PacketsMayComeInAnyPieces) {
    const bytes all = first_words();
    for (std::size_t split = 0; split <= all.size(); ++split) {
        usbip_session session(desk_.exports, desk_.now);
        bytes answers = say(session, part_of(all, 0, split));
        const bytes rest = say(session, part_of(all, split, all.size() - split));
        answers.insert(answers.end(), rest.begin(), rest.end());
        expect_first_answers(answers);
        ASSERT_FALSE(HasFailure()) << "split at " << split;
    }
}

TEST_F(UsbipSession, PacketsMayComeByteByByte) {
    bytes answers;
    for (const std::uint8_t byte : first_words()) {
        const bytes more = say({byte});
        answers.insert(answers.end(), more.begin(), more.end());
    }
    expect_first_answers(answers);
}

TEST_F(UsbipSession, ATransferWaitsForItsCommandAndCanBeTakenBack) {
    import();
    EXPECT_EQ(say(bulk_in(10, 13)), bytes());
    EXPECT_EQ(say(unlink(11, 10)), unlink_reply(11, -104));
    EXPECT_EQ(say(unlink(12, 10)), unlink_reply(12, 0)) << "it is known no more";
    EXPECT_EQ(say(unlink(13, 999)), unlink_reply(13, 0));
    EXPECT_FALSE(session_.over());
}

TEST_F(UsbipSession, AnAnsweredTransferCannotBeTakenBack) {
    import();
    EXPECT_EQ(say(bulk_out(10, wrapped(1, 36, true, inquiry))), submit_reply(10, 0, 31));
    EXPECT_EQ(say(unlink(11, 10)), unlink_reply(11, 0));
}

TEST_F(UsbipSession, AnAnswerThatTakesTimeComesThen) {
    begin_slow_read();
    EXPECT_EQ(session_.next_event(), std::chrono::seconds(3));
    pass(std::chrono::seconds(2));
    EXPECT_EQ(heard(session_), bytes());
    pass(std::chrono::seconds(1));
    EXPECT_EQ(heard(session_), joined({submit_reply(2, 0, 512), bytes(512)}));
    EXPECT_EQ(session_.next_event(), std::nullopt);
}

TEST_F(UsbipSession, ASlowAnswerThatWasTakenBackIsNotSent) {
    begin_slow_read();
    EXPECT_EQ(say(unlink(3, 2)), unlink_reply(3, -104));
    pass(std::chrono::seconds(3));
    EXPECT_EQ(heard(session_), bytes());
    EXPECT_EQ(session_.next_event(), std::nullopt);
}

TEST_F(UsbipSession, AWarmBootIsAnsweredBeforeTheDeviceLeaves) {
    import();
    say(bulk_out(1, wrapped(5, 0, false, warm_boot)));
    desk_.on.advance(desk_.now);
    EXPECT_EQ(session_.next_event(), moment{0});
    pass(std::chrono::milliseconds(1));
    EXPECT_FALSE(session_.over());
    EXPECT_EQ(say(bulk_in(2, 13)), joined({submit_reply(2, 0, 13), status_wrapper(5, 0, 0)}));
    EXPECT_TRUE(session_.over());
    EXPECT_EQ(session_.complaint(), "");
}

TEST_F(UsbipSession, AnAnswerThatNobodyFetchesKeepsNoDeviceThatLeft) {
    import();
    say(bulk_out(1, wrapped(5, 0, false, warm_boot)));
    pass(moment{0});
    EXPECT_FALSE(session_.over());
    pass(std::chrono::milliseconds(200));
    EXPECT_TRUE(session_.over());
}

TEST_F(UsbipSession, AnImportDuringARestartIsHeldUntilTheDeviceIsBack) {
    desk_.on.warm_boot("box", desk_.now);
    EXPECT_EQ(say(import_request("1-1")), bytes());
    EXPECT_FALSE(session_.over());
    pass(std::chrono::milliseconds(999));
    EXPECT_EQ(heard(session_), bytes());
    desk_.now += std::chrono::milliseconds(1);
    desk_.on.advance(desk_.now);
    EXPECT_EQ(session_.next_event(), moment{0});
    session_.advance(desk_.now);
    EXPECT_EQ(heard(session_).size(), import_reply_size);
}

TEST_F(UsbipSession, AHeldImportIsRefusedWhenTheExportEnds) {
    desk_.on.warm_boot("box", desk_.now);
    say(import_request("1-1"));
    desk_.on.end_export("box");
    pass(moment{0});
    EXPECT_EQ(heard(session_), (bytes{1, 0x11, 0, 3, 0, 0, 0, 4}));
    EXPECT_TRUE(session_.over());
}

TEST_F(UsbipSession, OfTwoHeldImportsOneGetsTheDevice) {
    usbip_session other(desk_.exports, desk_.now);
    desk_.on.warm_boot("box", desk_.now);
    say(import_request("1-1"));
    say(other, import_request("1-1"));
    pass(std::chrono::seconds(1));
    other.advance(desk_.now);
    EXPECT_EQ(heard(session_).size(), import_reply_size);
    EXPECT_EQ(heard(other), (bytes{1, 0x11, 0, 3, 0, 0, 0, 2}));
}

TEST_F(UsbipSession, AnUnpluggedDeviceEndsItsSession) {
    import();
    desk_.on.unplug("box");
    pass(moment{0});
    EXPECT_TRUE(session_.over());
    EXPECT_EQ(session_.complaint(), "");
}

// Its answer cannot be sent any more, and to be woken for it again and again would be a busy loop.
TEST_F(UsbipSession, ACommandAtWorkIsNotAwaitedOnceTheDeviceHasLeft) {
    begin_slow_read();
    session_.receive(control_in(3, {0xA1, 0xFE, 0, 0, 0, 0, 1, 0}, 1), desk_.now); // not fetched
    desk_.on.unplug("box");
    pass(moment{0});
    EXPECT_FALSE(session_.over());
    EXPECT_EQ(session_.next_event(), std::chrono::seconds(10));
}

TEST_F(UsbipSession, WhoAsksForNothingIsNotAwaitedForEver) {
    EXPECT_EQ(session_.next_event(), std::chrono::seconds(10));
    say(part_of(list_request(), 0, 7));
    pass(std::chrono::seconds(10));
    EXPECT_TRUE(session_.over());
    EXPECT_NE(session_.complaint(), "");
}

TEST_F(UsbipSession, WhoFetchesNothingIsNotAwaitedForEver) {
    session_.receive(list_request(), desk_.now);
    EXPECT_FALSE(session_.over());
    pass(std::chrono::seconds(10));
    EXPECT_TRUE(session_.over());
}

TEST_F(UsbipSession, AnotherVersionOrRequestIsBrokenOff) {
    expect_broken_off({0x01, 0x06, 0x80, 0x05, 0, 0, 0, 0}, "version");
}

TEST_F(UsbipSession, AnUnknownRequestIsBrokenOff) {
    expect_broken_off({0x01, 0x11, 0x80, 0x04, 0, 0, 0, 0}, "unknown");
}

TEST_F(UsbipSession, AnUnknownCommandIsBrokenOff) {
    import();
    bytes packet = bulk_in(1, 13);
    packet[3] = 3;
    expect_broken_off(packet, "unknown command");
}

TEST_F(UsbipSession, ACommandForAnotherDeviceIsBrokenOff) {
    import();
    expect_broken_off(submit({1, 0x00010002, 1, 1, 13}), "not imported");
}

TEST_F(UsbipSession, AnEndpointThatCannotBeIsBrokenOff) {
    import();
    expect_broken_off(submit({1, 0x00010001, 1, 16, 13}), "endpoint");
}

TEST_F(UsbipSession, ADirectionThatCannotBeIsBrokenOff) {
    import();
    expect_broken_off(submit({1, 0x00010001, 2, 1, 13}), "endpoint");
}

TEST_F(UsbipSession, AnIsochronousTransferIsBrokenOff) {
    import();
    expect_broken_off(submit({1, 0x00010001, 1, 1, 13, bytes(8), {}, 1}), "isochronous");
}

TEST_F(UsbipSession, AHugeTransferIsBrokenOffBeforeItsData) {
    import();
    expect_broken_off(submit({1, 0x00010001, 0, 2, (1U << 20) + 1}), "1 MiB");
}

TEST_F(UsbipSession, ANumberThatIsInUseIsBrokenOff) {
    import();
    say(bulk_in(1, 13));
    expect_broken_off(bulk_in(1, 13), "twice");
}

TEST_F(UsbipSession, EndlessTransfersAreBrokenOff) {
    import();
    for (std::uint32_t number = 1; number <= 1024; ++number) {
        say(bulk_in(number, 13));
        ASSERT_FALSE(session_.over());
    }
    expect_broken_off(bulk_in(1025, 13), "too many");
}

TEST_F(UsbipSession, EndlessDataAreBrokenOff) {
    import();
    say(bulk_out(1, wrapped(1, 36, true, inquiry))); // from now on no data are taken
    for (std::uint32_t number = 2; number <= 5; ++number) {
        say(bulk_out(number, bytes(1U << 20)));
        ASSERT_FALSE(session_.over());
    }
    expect_broken_off(bulk_out(6, {1}), "too many");
}

TEST_F(UsbipSession, AnUnknownEndpointIsStalled) {
    import();
    EXPECT_EQ(say(submit({1, 0x00010001, 0, 3, 4, bytes(8), bytes(4)})), submit_reply(1, -32, 0));
    EXPECT_EQ(say(submit({2, 0x00010001, 1, 2, 4})), submit_reply(2, -32, 0));
    EXPECT_EQ(say(submit({3, 0x00010001, 0, 0, 0, {0x80, 6, 0, 1, 0, 0, 18, 0}})),
              submit_reply(3, -32, 0))
        << "a request for data that expects none";
}

TEST_F(UsbipSession, BothNumbersOfPacketsThatMeanNoneAreTaken) {
    import();
    EXPECT_EQ(say(submit({1, 0x00010001, 1, 0, 1, {0xA1, 0xFE, 0, 0, 0, 0, 1, 0}, {}, 0xFFFFFFFF})),
              joined({submit_reply(1, 0, 1), {0}}));
}

TEST_F(UsbipSession, ASlowReaderIsNotReadFrom) {
    import();
    std::uint32_t number = 0;
    while (session_.wants_input()) {
        session_.receive(control_in(++number, {0x80, 6, 3, 3, 9, 4, 255, 0}, 255), desk_.now);
        ASSERT_LT(number, 100'000U);
    }
    EXPECT_LT(session_.output().size(), (1U << 20) + 512);
    const bytes answers = heard(session_);
    EXPECT_EQ(answers.size(), number * (48 + 12));
    EXPECT_TRUE(session_.wants_input());
}

TEST_F(UsbipSession, AnyBytesAreSafe) {
    std::mt19937 chance(20260222);
    const auto below = [&](std::uint32_t limit) {
        return static_cast<std::uint32_t>(chance() % limit);
    };
    for (int round = 0; round < 300; ++round) {
        usbip_session session(desk_.exports, desk_.now);
        bytes stream = first_words();
        for (std::uint32_t i = below(6); i > 0; --i) {
            const bytes more = below(2) == 0 ? bulk_out(below(40), bytes(below(64), 'U'))
                                             : bulk_in(below(40), below(2000));
            stream.insert(stream.end(), more.begin(), more.end());
        }
        for (std::uint32_t i = below(12); i > 0; --i) {
            stream[below(static_cast<std::uint32_t>(stream.size()))] =
                static_cast<std::uint8_t>(chance());
        }
        for (std::size_t at = 0; at < stream.size() && session.wants_input();) {
            const std::size_t piece = 1 + below(200);
            say(session, part_of(stream, at, piece));
            at += piece;
        }
        session.advance(desk_.now);
        EXPECT_EQ(session.over(), !session.wants_input());
    }
    EXPECT_EQ(say(import_request("1-1")).size(), import_reply_size) << "nobody kept the device";
}

} // namespace
} // namespace enclosure
