#include "tests/power/replay.h"

#include <algorithm>
#include <utility>

namespace {

using contents_reader = disk_contents (*)(disk_pair);

// Without what no array and no data are in: the first 64 sectors and the rest of an erased record.
disk_contents without_leftovers(disk_pair disks) {
    for (auto& disk : disks) {
        if (disk) {
            std::erase_if(disk->sectors, [](const auto& entry) { return entry.first < 64; });
            sector_bytes& record = disk->sectors[record_address(*disk)];
            record = record[0] == 'K' ? record : sector_bytes{};
        }
    }
    return timeless_contents_of(std::move(disks));
}

bool among(const std::vector<disk_pair>& ends, const disk_pair& disks, contents_reader read) {
    return std::any_of(ends.begin(), ends.end(),
                       [&](const disk_pair& end) { return read(end) == read(disks); });
}

bool explains_leftovers(const finding& from) {
    return std::any_of(from.remarks.begin(), from.remarks.end(), [](remark one) {
        return one == remark::head_left || one == remark::tail_left || one == remark::not_named ||
               one == remark::unfinished_half;
    });
}

} // namespace

// As the host sees them.
disk_pair replay::disks_before() const {
    disk_pair disks = case_.disks;
    for (const disk_event& event : case_.unflushed) {
        disks.at(event.port).value().sectors[event.lba] = event.data;
    }
    return disks;
}

void replay::meanwhile(disk_pair& disks) const {
    if (case_.meanwhile) {
        case_.meanwhile(disks);
    }
}

disk_events replay::let_it_happen() {
    change_ = {disks_before(), disks_before()};
    disk_events events = act(change_.end, case_.act);
    events.insert(events.begin(), case_.unflushed.begin(), case_.unflushed.end());
    meanwhile(change_.start);
    meanwhile(change_.end);
    return events;
}

// A copy that was under way may have ended before the change; a partner that comes back before the
// program has seen it gone is as welcome.
std::vector<disk_pair> replay::wanted_ends() {
    std::vector<disk_pair> ends;
    disk_pair disks = disks_before();
    if (case_.meanwhile) {
        ends.push_back(change_.start);
    }
    for (int copied = 0; copied < 2; ++copied) {
        disk_pair end = disks;
        act(end, case_.act);
        meanwhile(end);
        come_back(end);
        ends.push_back(end);
        come_back(disks);
    }
    return ends;
}

case_tally replay::cut_everywhere(const power_case& one) {
    case_ = one;
    case_tally tally{one.change, one.start, {}, {}, {}, {}, {}};
    const disk_events events = let_it_happen();
    EXPECT_NE(contents_of(change_.start), contents_of(change_.end));
    EXPECT_TRUE(!one.offered || offered(one.disks)) << "nobody can ask for it";
    ends_ = wanted_ends();
    std::map<disk_contents, result> seen;
    for_each_cut(one.disks, events, [&](const power_cut& cut) {
        disk_pair left = cut.disks;
        meanwhile(left);
        const disk_contents contents = contents_of(left);
        auto known = seen.find(contents);
        if (known == seen.end()) {
            known = seen.emplace(contents, look_at(left)).first;
            tally.second_cuts.add(known->second.second_cuts);
        }
        tally.add(known->second.is, known->second.how, cut.torn);
    });
    return tally;
}

replay::result replay::look_at(const disk_pair& left) {
    const finding is = judge_now(left);
    disk_pair disks = left;
    switch_on(disks);
    const disk_pair copied = disks;
    const disk_events reaction = let_program_react(disks);
    judge_now(disks);
    EXPECT_FALSE(chip_bench::read(disks).copy) << "a copy that begins again after its end";
    const ending how = carry_on(disks, is);
    EXPECT_TRUE(how != ending::leftovers || explains_leftovers(is));
    return {is, how, cut_again(copied, reaction)};
}

finding replay::judge_now(const disk_pair& disks) {
    finding is = judge(case_, change_, disks, read(disks), chip_bench::read(disks));
    EXPECT_EQ(is.fault, "");
    return is;
}

cut_count replay::cut_again(const disk_pair& disks, const disk_events& reaction) {
    cut_count cuts;
    if (reaction.empty()) {
        return cuts;
    }
    for_each_cut(disks, reaction, [&](const power_cut& cut) {
        const finding is = judge_now(cut.disks);
        disk_pair left = cut.disks;
        come_back(left);
        carry_on(left, is);
        cuts.add(cut.torn);
    });
    return cuts;
}

bool replay::offered(const disk_pair& disks) {
    return case_.offered && case_.offered(read(disks).view);
}

void replay::take_way_out(disk_pair& disks) {
    act(disks, case_.way_out);
    come_back(disks);
}

// Power is back, and the user does what the program lets him do.
ending replay::carry_on(disk_pair disks, const finding& from) {
    if (among(ends_, disks, timeless_contents_of)) {
        return ending::by_itself;
    }
    ending how = ending::again;
    if (case_.way_out && !offered(disks)) {
        how = ending::by_way_out;
        take_way_out(disks);
    }
    if (offered(disks)) {
        act(disks, case_.act);
        come_back(disks);
    }
    if (among(ends_, disks, timeless_contents_of)) {
        return how;
    }
    if (from.remarks.contains(remark::copy_lost)) {
        return ending::unnoticed;
    }
    EXPECT_TRUE(from.remarks.contains(remark::not_named) || among(ends_, disks, without_leftovers));
    return ending::leftovers;
}
