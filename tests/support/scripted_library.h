// The access library of the tests: answers from bridges held in memory, or plays a script.
#pragma once

#include <atomic>
#include <functional>
#include <vector>

#include "device/access_library.h"
#include "tests/support/call_log.h"
#include "tests/support/call_script.h"
#include "tests/support/memory_enclosure.h"
#include "util/mutex.h"
#include "util/thread_annotations.h"

// Logs every call with its status. Once something is expected, the script alone answers and any
// other call fails the test. Two per-device calls at once fail the test, too. Any thread.
class scripted_library final : public access_library {
public:
    using hook = std::function<void(const library_call&)>;

    explicit scripted_library(call_log& log) : log_(log) {}
    ~scripted_library() override;

    void expect(const std::string& text, library_answer answer = {},
                std::optional<sector_bytes> record = {});
    // Fails the test for what was expected and never came. Then empties the library.
    void finish();

    // Runs `change` on the bridges while no call is answered.
    void with_bridges(const std::function<void(memory_enclosure&)>& change);
    void add_bridge(std::uint32_t device, std::optional<memory_disk> disk0 = {},
                    std::optional<memory_disk> disk1 = {});
    sector_bytes sector(std::uint32_t device, int port, std::uint64_t lba);

    // The nth call from now (1 is the next one) whose text begins with `beginning` gets this
    // answer and changes nothing.
    void answer_nth(const std::string& beginning, int nth, library_answer answer);
    // Every call whose text begins with `beginning` gets this answer.
    void answer_all(const std::string& beginning, library_answer answer);
    // Runs `action` within that call, before it is answered.
    void on_nth(const std::string& beginning, int nth, std::function<void()> action);
    // That call is answered by `answerer`, on the bridges as they are then.
    using answerer = std::function<library_answer(const library_call&, memory_enclosure&)>;
    void replace_nth(const std::string& beginning, int nth, answerer instead);
    // Nothing that was planned for a coming call happens any more.
    void forget_plans();
    // Runs in every call, before it is answered.
    void on_call(hook every);

    std::int32_t getDeviceList(void* list, std::int32_t* count) override;
    std::int32_t openConnection(std::uint32_t device) override;
    std::int32_t closeConnection(std::uint32_t device) override;
    std::int32_t krGetRaidInfo(std::uint32_t device, void* buffer, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48) override;
    std::int32_t krGetRaidInfoFW(std::uint32_t device, void* buffer, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port) override;
    std::int32_t krSetRaidInfo(std::uint32_t device, const void* record, std::uint32_t length,
                               std::uint64_t lba, std::int32_t port, std::int32_t lba48) override;
    std::int32_t krSetRaidInfoFW(std::uint32_t device, const void* record, std::uint32_t length,
                                 std::uint64_t lba, std::int32_t port) override;
    std::int32_t krGetRebuildStatus(std::uint32_t device, void* status,
                                    std::uint32_t length) override;
    std::int32_t krGetDiskIdentify(std::uint32_t device, void* buffer, std::uint32_t length,
                                   std::int32_t port) override;
    std::int32_t krGetRegister(std::uint32_t device, void* buffer, std::uint32_t size,
                               std::uint32_t length, std::uint32_t address) override;
    std::int32_t krWarmBoot(std::uint32_t device) override;
    std::int32_t krFlushHDDCache(std::uint32_t device, std::int32_t port) override;

private:
    // Something that happens in a coming call.
    struct intervention {
        std::string beginning;
        int countdown = 1; // at 0 it is due
        bool always = false;
        std::optional<library_answer> answer;
        std::function<void()> action;
        answerer instead;
    };

    hook every_call();
    // What is planned for this call.
    std::vector<intervention> due(const library_call& call);
    library_answer answer(const library_call& call);
    std::int32_t run(const library_call& call, void* buffer = nullptr, std::size_t size = 0,
                     std::int32_t* count = nullptr);

    call_log& log_;
    std::atomic<int> in_flight_{0};
    plain_mutex mutex_;
    call_script script_ GUARDED_BY(mutex_);
    memory_enclosure bridges_ GUARDED_BY(mutex_);
    std::vector<intervention> interventions_ GUARDED_BY(mutex_);
    hook every_ GUARDED_BY(mutex_);
};
