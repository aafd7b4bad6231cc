// How fast a rebuild goes.
#include "app/copy_pace.h"

#include <gtest/gtest.h>
#include <map>

#include "app/pace_text.h"

namespace {

using std::chrono::seconds;

constexpr std::uint64_t end_of_copy = 4'000'000'000;

class paces : public testing::Test {
protected:
    // A reading every 4 seconds, as the chip is asked.
    pace_view read(std::uint64_t current) {
        time += seconds(4);
        return pace.note(end_of_copy, current, time);
    }

    copy_pace pace;
    copy_pace::time_point time{};
};

TEST_F(paces, SaysNothingUntilItIsSteady) {
    for (int reading = 0; reading < 3; ++reading) {
        EXPECT_FALSE(read(static_cast<std::uint64_t>(reading) * 1'000'000).bytes_per_second);
    }
    const pace_view steady = read(3'000'000);
    EXPECT_EQ(steady.bytes_per_second, 128'000'000U); // 250,000 sectors a second
    EXPECT_EQ(steady.left, seconds((end_of_copy - 3'000'000) / 250'000));
}

TEST_F(paces, FollowsTheLastMinuteAlone) {
    std::uint64_t at = 0;
    for (int reading = 0; reading < 20; ++reading) {
        read(at += 4'000'000);
    }
    pace_view now;
    for (int reading = 0; reading < 16; ++reading) {
        now = read(at += 400'000);
    }
    EXPECT_EQ(now.bytes_per_second, 51'200'000U);
}

TEST_F(paces, StandsStillAfterTwentySeconds) {
    for (std::uint64_t reading = 1; reading <= 4; ++reading) {
        read(reading * 1'000'000);
    }
    for (int reading = 0; reading < 4; ++reading) {
        EXPECT_FALSE(read(4'000'000).stalled);
    }
    const pace_view now = read(4'000'000);
    EXPECT_TRUE(now.stalled);
    EXPECT_FALSE(now.left || now.bytes_per_second);
    EXPECT_FALSE(read(4'000'001).stalled);
}

TEST_F(paces, FinishedCopyIsNotStalled) {
    for (int reading = 0; reading < 12; ++reading) {
        const pace_view now = read(end_of_copy);
        EXPECT_FALSE(now.stalled || now.left);
    }
}

TEST_F(paces, ReadingsOfAnotherCopyBeginAnew) {
    for (std::uint64_t reading = 1; reading <= 4; ++reading) {
        read(reading * 1'000'000);
    }
    EXPECT_FALSE(read(1'000).bytes_per_second);
    for (std::uint64_t reading = 1; reading <= 4; ++reading) {
        read(reading * 1'000'000);
    }
    EXPECT_FALSE(pace.note(end_of_copy + 1, 5'000'000, time + seconds(4)).bytes_per_second);
}

// Keys with what they are filled with.
class keyed_texts final : public text_lookup {
public:
    std::string text(std::string_view key) const override {
        return std::string(key) + (key == "ui_left_hours" ? " %1 %2" : " %1");
    }
};

TEST(pace_words, NameWholeHoursAndMinutes) {
    const keyed_texts texts;
    pace_view pace;
    EXPECT_EQ(time_left_text(pace, texts), "");
    EXPECT_EQ(speed_text(pace, texts), "");
    pace.left = seconds(2 * 3600 + 20 * 60 + 59);
    EXPECT_EQ(time_left_text(pace, texts), "ui_left_hours 2 20");
    pace.left = seconds(59 * 60 + 59);
    EXPECT_EQ(time_left_text(pace, texts), "ui_left_minutes 59");
    pace.left = seconds(59);
    EXPECT_EQ(time_left_text(pace, texts), "ui_left_soon %1");
    pace.bytes_per_second = 148'999'999;
    EXPECT_EQ(speed_text(pace, texts), "148 MB/s");
    pace.bytes_per_second = 9'999'999;
    EXPECT_EQ(speed_text(pace, texts), "9.9 MB/s");
    pace.bytes_per_second = 70'000;
    EXPECT_EQ(speed_text(pace, texts), "0.0 MB/s");
    pace.stalled = true;
    EXPECT_EQ(speed_text(pace, texts), "ui_stalled %1");
}

} // namespace
