// A source of real bridges whose telling is kept.
#pragma once

#include "device/udev_source.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

// How udev's events reach the source.
enum class hearing { good, loses_events, broken };

class mock_events final : public node_events {
public:
    explicit mock_events(const hearing& how) : how_(how) {}

    bool open() override { return real_.open(); }
    int descriptor() const override { return real_.descriptor(); }

    // Instead of everything that came while events were being lost, it says so once.
    std::optional<node_event> next() override {
        bool missed = how_ == hearing::broken;
        while (std::optional<node_event> event = real_.next()) {
            if (how_ == hearing::good) {
                return event;
            }
            missed = true;
        }
        return missed ? std::optional(node_event{node_event::kind::lost, nullptr}) : std::nullopt;
    }

private:
    const hearing& how_;
    udev_events real_;
};

// A new arrival has to be given its number by the test.
class heard_source {
public:
    std::uint64_t arrival = 1;
    hearing how = hearing::good;
    int looks = 0;                        // at nodes that lead to bridges
    std::vector<bridge_identity> bridges; // in the order of their arrival
    std::vector<std::string> told;        // "+1" arrived, "-1" departed: the bridge's order

    bool listen() {
        return source_.listen({[this](const bridge_identity& bridge) { note_arrival(bridge); },
                               [this](std::uint32_t handle) { note_departure(handle); }});
    }
    bool process() { return source_.process(); }
    int poll_timeout() const { return source_.poll_timeout(); }

private:
    void note_arrival(const bridge_identity& bridge) {
        bridges.push_back(bridge);
        told.push_back((bridge.announced ? "+" : "(+)") + std::to_string(bridges.size()));
    }

    // The latest bridge with the handle; 0: none ever had it.
    void note_departure(std::uint32_t handle) {
        std::size_t order = bridges.size();
        while (order > 0 && bridges[order - 1].handle != handle) {
            --order;
        }
        told.push_back("-" + std::to_string(order));
    }

    udev_source source_{std::make_unique<mock_events>(how), [this](const std::string&) {
                            ++looks;
                            return arrival;
                        }};
};
