// A registry with more than one source in its loop.
#include "device/source_registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;

bridge_identity bridge(std::uint32_t handle) {
    bridge_identity identity;
    identity.handle = handle;
    identity.name = "bridge " + std::to_string(handle);
    identity.node = "/dev/null";
    return identity;
}

// Tells what a test has said it should; its descriptor is ready from then on.
class scripted_source final : public bridge_source {
public:
    explicit scripted_source(bool present = true) : present_(present) {}
    ~scripted_source() override { ::close(ready_); }
    scripted_source(const scripted_source&) = delete;
    scripted_source& operator=(const scripted_source&) = delete;

    void will_bring(std::uint32_t handle) {
        coming_.push_back(handle);
        ::eventfd_write(ready_, 1);
    }
    void will_take(std::uint32_t handle) {
        going_.push_back(handle);
        ::eventfd_write(ready_, 1);
    }
    void will_end() {
        ends_ = true;
        ::eventfd_write(ready_, 1);
    }

    bool listen(listener told) override {
        told_ = std::move(told);
        return present_;
    }
    bool process() override {
        for (const std::uint32_t handle : std::exchange(coming_, {})) {
            told_.arrived(bridge(handle));
        }
        for (const std::uint32_t handle : std::exchange(going_, {})) {
            told_.departed(handle);
        }
        eventfd_t count = 0;
        ::eventfd_read(ready_, &count);
        return !ends_;
    }
    bool catch_up() override { return process(); }
    pollfd watched() const override { return {ready_, POLLIN, 0}; }
    int poll_timeout() const override { return -1; }

private:
    const bool present_;
    bool ends_ = false;
    const int ready_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::vector<std::uint32_t> coming_;
    std::vector<std::uint32_t> going_;
    listener told_;
};

class SourceRegistry : public testing::Test {
protected:
    // Two sources, the second of which may have nothing to listen to.
    std::unique_ptr<source_registry> registry(bool second_is_present = true) {
        source_registry::sources all;
        all.push_back(std::make_unique<scripted_source>());
        first_ = static_cast<scripted_source*>(all.back().get());
        all.push_back(std::make_unique<scripted_source>(second_is_present));
        second_ = static_cast<scripted_source*>(all.back().get());
        return std::make_unique<source_registry>(std::move(all));
    }

    // Runs until the first arrival has been taken.
    std::vector<std::uint32_t> next_arrival(source_registry& from) {
        std::vector<std::uint32_t> bridges;
        const std::uint32_t iterator = from.add_matching_notification([&](std::uint32_t some) {
            while (const std::uint32_t service = from.next(some)) {
                bridges.push_back(service);
            }
            from.stop();
        });
        EXPECT_EQ(from.next(iterator), 0U);
        from.run();
        return bridges;
    }

    scripted_source* first_ = nullptr;
    scripted_source* second_ = nullptr;
};

TEST_F(SourceRegistry, HearsOfBridgesFromEverySource) {
    const auto tested = registry();
    ASSERT_TRUE(tested->match(bridge_class));
    first_->will_bring(1);
    second_->will_bring(2);
    EXPECT_THAT(next_arrival(*tested), ElementsAre(1, 2));
    EXPECT_NE(tested->entry_of(2), 0U);
}

TEST_F(SourceRegistry, DoesWithoutASourceThatHasNothingToListenTo) {
    const auto tested = registry(false);
    ASSERT_TRUE(tested->match(bridge_class));
    first_->will_bring(1);
    EXPECT_THAT(next_arrival(*tested), ElementsAre(1));
}

TEST_F(SourceRegistry, GoesOnWhenOneSourceHasGone) {
    const auto tested = registry();
    ASSERT_TRUE(tested->match(bridge_class));
    second_->will_end();
    EXPECT_EQ(tested->entry_of(5), 0U);
    first_->will_bring(1);
    EXPECT_THAT(next_arrival(*tested), ElementsAre(1));
}

// The window looks at that time, and would call a bridge without its node one without rights.
TEST_F(SourceRegistry, ABridgeThatLeftIsReachedNoMoreWhileItsDepartureIsHandled) {
    const auto tested = registry();
    ASSERT_TRUE(tested->match(bridge_class));
    first_->will_bring(1);
    second_->will_bring(2);
    std::vector<reached_bridge> reached;
    registry_entry entry = 0;
    const auto on_departure = [&](std::uint32_t gone, std::uint32_t) {
        reached = tested->reached();
        entry = tested->entry_of(gone);
        tested->stop();
    };
    tested->next(tested->add_matching_notification([&](std::uint32_t some) {
        while (const std::uint32_t service = tested->next(some)) {
            tested->add_interest_notification(service, on_departure);
        }
        first_->will_take(1);
    }));
    tested->run();
    EXPECT_THAT(reached, ElementsAre(reached_bridge{"bridge 2", "/dev/null", true}));
    EXPECT_NE(entry, 0U); // what it was called by is still known
}

TEST_F(SourceRegistry, EndsWithItsLastSource) {
    const auto tested = registry();
    ASSERT_TRUE(tested->match(bridge_class));
    first_->will_end();
    second_->will_end();
    tested->run();
}

TEST_F(SourceRegistry, WithoutAnySourceThereIsNothingToListenTo) {
    source_registry nothing(source_registry::sources{});
    EXPECT_FALSE(nothing.match(bridge_class));
    EXPECT_EQ(nothing.entry_of(1), 0U);
}

} // namespace
