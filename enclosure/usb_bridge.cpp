#include "enclosure/usb_bridge.h"

#include <algorithm>
#include <utility>

namespace enclosure::usb {

namespace {

template<class Queue> auto with_number(Queue& queue, std::uint32_t number) {
    return std::find_if(queue.begin(), queue.end(),
                        [number](const transfer& one) { return one.number == number; });
}

finished_transfer stalled(const transfer& asked) {
    return {asked.number, true, 0, {}};
}

} // namespace

bridge_device::queue& bridge_device::queue_for(const transfer& asked) {
    if (asked.endpoint == in_endpoint && asked.in) {
        return in_;
    }
    return asked.endpoint == out_endpoint && !asked.in ? out_ : control_queue_;
}

void bridge_device::submit(transfer asked) {
    queue& where = queue_for(asked);
    where.push_back(std::move(asked));
}

bool bridge_device::waits(std::uint32_t number) const {
    const auto in = [number](const queue& one) { return with_number(one, number) != one.end(); };
    return in(control_queue_) || in(in_) || in(out_);
}

bool bridge_device::cancel(std::uint32_t number) {
    for (queue* const one : {&control_queue_, &in_, &out_}) {
        if (const auto found = with_number(*one, number); found != one->end()) {
            one->erase(found);
            return true;
        }
    }
    return false;
}

std::size_t bridge_device::waiting_bytes() const {
    std::size_t sum = 0;
    for (const queue* const one : {&control_queue_, &out_}) {
        for (const transfer& asked : *one) {
            sum += asked.data.size();
        }
    }
    return sum;
}

std::optional<finished_transfer> bridge_device::next(moment now) {
    storage_.advance(now);
    if (!control_queue_.empty()) {
        const transfer asked = std::move(control_queue_.front());
        control_queue_.pop_front();
        return answer_control(asked);
    }
    std::optional<finished_transfer> ended = next_out(now);
    return ended ? std::move(ended) : next_in(now);
}

finished_transfer bridge_device::answer_control(const transfer& asked) {
    if (asked.endpoint != control_endpoint || asked.in != asks_for_data(asked.setup)) {
        return stalled(asked);
    }
    std::optional<std::vector<std::uint8_t>> data = control_.answer(asked.setup);
    if (!data) {
        return stalled(asked);
    }
    data->resize(std::min<std::size_t>(data->size(), asked.length));
    const auto moved = static_cast<std::uint32_t>(data->size());
    return {asked.number, false, moved, std::move(*data)};
}

std::optional<finished_transfer> bridge_device::next_out(moment now) {
    if (out_.empty()) {
        return std::nullopt;
    }
    const std::optional<pipe_result> result = storage_.take(out_.front().data, now);
    if (!result) {
        return std::nullopt;
    }
    const std::uint32_t number = out_.front().number;
    out_.pop_front();
    return finished_transfer{
        number, result->stalled, static_cast<std::uint32_t>(result->taken), {}};
}

std::optional<finished_transfer> bridge_device::next_in(moment now) {
    if (in_.empty()) {
        return std::nullopt;
    }
    std::optional<pipe_result> result = storage_.give(in_.front().length, now);
    if (!result) {
        return std::nullopt;
    }
    const std::uint32_t number = in_.front().number;
    in_.pop_front();
    return finished_transfer{number, result->stalled,
                             static_cast<std::uint32_t>(result->sent.size()),
                             std::move(result->sent)};
}

} // namespace enclosure::usb
