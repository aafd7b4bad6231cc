// The record of one attached bridge chip, and what is done to it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "model/krdisk.h"
#include "model/monitor.h"
#include "model/shared_flag.h"
#include "util/library.h"

// A chip lives in krtool::chips. Its fields are written with the gate and the records lock held
// and read with either of them; the flags may be read and written by any thread
// (docs/threads.md). Operations run on the thread that asks, never on the interface thread, with
// the gate held, the library mutex and the records lock not held; they block for as long as the
// library and the pauses take. Sector addresses count 512-byte sectors from 0.
class krchip {
public:
    std::vector<krdisk> disks = std::vector<krdisk>(2); // index = port
    std::uint32_t device = 0;                           // handle of the access library
    std::uint8_t raid_valid = 0;
    std::int32_t raid_mode = 0;      // of the array; keeps its last value without one
    std::uint64_t raid_capacity = 0; // sectors; the same
    monitor_handle poller_thread;
    monitor_handle raid1_timer_thread;
    shared_flag polling;        // the poller is wanted
    shared_flag raid1_timer_on; // the timer is wanted
    shared_flag raid1_timer_alive;
    shared_flag poller_alive;
    std::uint8_t rebuild_pending = 0;
    std::uint8_t rebuild_possible = 0;
    controller_t identity;
    std::uint8_t connection_open = 0;

    // Asks both ports who is there. Always 1.
    int retrievediskinformation();

    // Asks both ports again, in 2 seconds, and changes no record. True when the disks that answer
    // are those of the records, and the empty bays are the same.
    bool same_disks_answer() const;

    // Reads the metadata sector of the disk on `port` into its record; nothing for an absent
    // disk. A failed read, or a sector without signature, gives mode 0.
    void read_raid_info_disk(bool port);
    // Decides the array's state from both records. No library call.
    void read_raid_combined_info();
    // Both disks, then the array.
    void read_raid_info();

    // Puts the chip in force when it becomes the current one: an orphaned mirror member is
    // degraded, and a mirror gets its timer.
    void select_chip();

    // The name that the registry has for the bridge; at most 127 characters.
    std::string get_raid_name() const;

    // Writes one sector and reads it back. True when the disk then holds `info`; false also
    // when the process is leaving, with nothing written.
    bool execute_set_raid_info(raid_info info, long long lba, bool port);

    // Rewrites the record of the mirror member on `port` as one without a partner. The result
    // of the write.
    bool raid_degrade(bool port);
    // Takes the rebuild mark from the member on `port`, on the disk and in the cached sector.
    void clear_rebuild(bool port);

    // Changes of the array; the caller has asked the user. The monitors are stopped first, and on
    // success both caches are flushed and the chip restarted, so that the bridge leaves the bus and
    // comes back. False: a RAID record could not be written, and the chip was not restarted.

    // Creates an array of `mode` over both disks; any mode that is no array deletes instead. The
    // second argument is accepted and not used.
    bool create_raid(int mode, bool unused);
    // Erases both RAID records, and, unless the array is a mirror, LBAs 0 to 63 of both disks.
    bool clear_raid();
    // Erases LBAs 0 to 63 and the RAID record of the disk on `port`.
    bool clear_disk(bool port);
    // Has the chip copy port 0 onto port 1, or, with `direction` true, port 1 onto port 0. False
    // only when the source is no mirror member, with nothing written; whether the records could be
    // written is not told.
    bool rebuild(bool direction);
    // Restarts the chip; its departure is then not taken for a removal. True when the library
    // says that it was done.
    bool warm_boot();

    // Starts the poller of a running rebuild unless there is one. Always true. Those without the
    // gate take start_wanted_poller().
    bool start_polling();
    // Clears `polling` and hides the progress bar; does not wait. Always true.
    bool stop_polling();

    // Starts the timer that watches a mirror's ports unless there is one. Always true.
    bool start_raid1_timer();
    // Clears `raid1_timer_on`; does not wait. Always true.
    bool stop_raid1_timer();

    // Stops both monitors and waits for them: as long as a thread lives, and 10 seconds more
    // for a flag that no living thread will clear.
    void stop_monitors();
    // Whether a monitor runs, or counts as running, so that stopping it may take time.
    bool has_monitors();
    // The timer's half of the waiting.
    void await_raid1_timer();

private:
    void await_poller();

    // Each writes what it can; false when one of the writes failed.
    bool write_record(const raid_info& record, bool port);
    bool write_records(const raid_info& record0, const raid_info& record1);
    // Flushes these caches and restarts the chip; how that went is not asked.
    void commit(std::initializer_list<int> ports);

    // The FireWire form of reading and writing serves a 48-bit disk behind a FireWire bridge.
    bool firewire_form(bool port) const;
    // The library's status; mutex held.
    std::int32_t call_read(raid_info& sector, std::uint64_t lba, bool port) const;
    std::int32_t call_write(const raid_info& sector, std::uint64_t lba, bool port) const;
    // The library's status; mutex taken.
    std::int32_t read_sector(raid_info& sector, std::uint64_t lba, bool port) const;
};
