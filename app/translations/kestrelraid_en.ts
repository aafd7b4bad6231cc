<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>Create RAID</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>Delete RAID</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>RAID configuration</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>Configuration</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>Rebuild</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>Refresh</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>RAID status</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>Rebuild progress</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>Disk 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>Disk 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>S/N</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>Physical size</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>Not configured</translation>
    </message>
    <message id="raid_0">
        <source></source>
        <translation>RAID 0</translation>
    </message>
    <message id="raid_1">
        <source></source>
        <translation>RAID 1</translation>
    </message>
    <message id="span">
        <source></source>
        <translation>Span</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (broken)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (degraded)</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>new disk</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>old disk</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation> (source)</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation> (target)</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation> (rebuilding)</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>One disk of the RAID 1 array is missing, so there is only one copy of the data. The array keeps working with the remaining disk. Add a disk of at least the same size and rebuild.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>The RAID records on the two disks do not match. Rebuild a RAID 1 from the disk whose data you want to keep, clear one disk, or create a new array.</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>Attention</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>Warning</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>Error</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>A rebuild needs two disks, at least one of which belongs to a RAID 1 array.</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>All data on the disks will be lost and cannot be recovered. Continue?</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>The array could not be created. Check both disks and try again.</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>The array could not be deleted. Check both disks and try again.</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>The RAID record on the disk could not be cleared. Check the disk and try again.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>Copy Disk 1 onto Disk 2? Everything on Disk 2 will be overwritten and cannot be recovered.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>Copy Disk 2 onto Disk 1? Everything on Disk 1 will be overwritten and cannot be recovered.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>The rebuild could not be started. Check both disks and try again.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>The rebuild is complete. Both disks now hold the same data.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>A disk was added or removed. The enclosure is being read again.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>The enclosure could not be accessed.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Device</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>Enclosures</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>System information</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>Devices</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>Minimise</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>Clear</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>Clear Disk 1</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>Clear Disk 2</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>Restart enclosure</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>Busy</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>empty bay</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>Fast; sizes add up. One failure loses all.</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>Two identical copies. Either disk may fail.</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>One disk after the other; sizes add up.</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>Two separate disks.</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>No enclosure connected</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>Looking for enclosures…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>The enclosures and their disks are being read. This takes a few seconds.</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>The arrow shows which way the data flows. The disk at its tip will be overwritten. You will be asked again before anything is written.</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>Creates a new array: %1.</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>Deletes the array.</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>Clears Disk 1.</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>Clears Disk 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>Copies Disk 1 onto Disk 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>Copies Disk 2 onto Disk 1.</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>nothing is written</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>loses all data</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>keeps its data, leaves the array</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>is read, keeps its data</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>is overwritten, all data lost</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>overwrites</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>Too small by %1 sectors.</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>The copy reaches the place of its RAID record.</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>Only part of this disk is used: its RAID record is not at the end.</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>Its sectors are not 512 bytes long.</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>The safety copy of the RAID records could not be written: %1. Continue without it?</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>Disk 1 is too small by %1 sectors.</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>Disk 2 is too small by %1 sectors.</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>Restart %1</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>The copy onto this disk is not finished.</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>No enclosure</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>Scanning</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>No disks</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>Healthy</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>Degraded</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>Copies differ</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>Broken</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>Rebuilding</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>Both disks hold the same data.</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>Both disks respond. There is no second copy.</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>Disk %1 is being copied onto Disk %2.</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>Connect the enclosure by USB or FireWire.</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>Switch it on and wait a few seconds.</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>It should appear here; if not, press “%1”.</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>Still nothing? Check its power supply, then try another cable or port.</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>Not accessible</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>No access to the enclosure</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1: you do not have permission. Log in at this computer directly, or ask its administrator for access. Then press “%2”.</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>The enclosure does not respond</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1: no response as a RAID enclosure, or another program is using it. Eject the volume, switch the enclosure off and on again, then press “%2”.</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>No enclosure can be used at the moment.</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>Both bays are empty. Insert a disk, then press “%1”.</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>Bay %1 is empty. To create an array, insert a second disk there and press “%2”.</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>Two separate disks. To join them, choose a mode below and press “%1”; everything on both disks is then lost.</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>Either disk can fail without data loss. There is nothing to do.</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>Data is spread over both disks. If one fails, everything is lost: keep a copy elsewhere.</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>Disk 2 continues where Disk 1 ends. If one fails, its share of the data is lost: keep a copy elsewhere.</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>Disk %1 is missing, so there is only one copy, on Disk %2. Insert a disk of at least %3 into bay %1; you can then rebuild.</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>Only Disk %1 holds a copy of this RAID 1. To have two again, copy it onto Disk %2 with “%3”; everything on Disk %2 is then lost.</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>Only Disk %1 holds a copy of this RAID 1, and Disk %2 is too small for a second one. Insert a disk of at least %3 into bay %2.</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>Both disks hold a copy of the same RAID 1, but the copies differ; the record on Disk %1 is the more recent. Choose which copy to keep.</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>Both disks hold a copy of a RAID 1, but the copies do not match. Choose which one to keep.</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>Half of this array is missing. To reach its data, put the other disk back and press “%2”. Clear Disk %1 only if you no longer need the data.</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>The records on the two disks do not match. To reach an array’s data, put both of its disks back and press “%1”. Clear a disk only if you no longer need its data.</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>You can keep using the volume. Until the copy is complete, only Disk %1 holds all the data: do not switch off or unplug the enclosure.</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>No enclosure is connected.</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>The enclosures are being read.</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>Two disks are needed: bay %1 is empty.</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>Two disks are needed: both bays are empty.</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>A rebuild is running.</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>Choose RAID 0, RAID 1 or span first.</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>There is no array to delete.</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>Only a complete array can be deleted. Clearing a disk erases what is on it.</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>Disk %1 holds no copy of a RAID 1.</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>Both disks already hold the same data.</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>The disks form an array that keeps no second copy.</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>Bay %1 is empty: there is no disk to copy onto.</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>record %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>stays</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>overwritten</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>in use</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>source</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>target</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>about %1 h %2 min left</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>about %1 min left</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>less than a minute left</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>stalled</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>Changing the array…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>The records on the disks are being written. Do not switch off or unplug the enclosure.</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>A disk has failed</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>What to do when a disk has failed</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>Keep what is left</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>The other disk of a RAID 1 holds all your data, and the array keeps working with it. Now copy to another place anything you cannot afford to lose. Do not create, delete or clear anything.</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>Find the failed disk</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>If a disk is gone, the “%1” page shows which bay is empty. The other disk’s serial number is on “%2”: compare it with the label before you take a disk out.</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>Insert a new disk</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>It must be at least as large as the old one. Everything on it will be overwritten, so use one that holds nothing you need.</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>Rebuild</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>On the “%1” tab, press the button whose arrow points from the remaining disk to the new one. Keep the enclosure switched on until the program says that the rebuild is complete.</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>RAID 0 and span keep no second copy. Try the disk with another cable or in the other bay; if it has failed, only a backup will help.</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>Show window</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>Disk %1 holds a complete copy of a RAID 1, Disk %2 half of another array. A rebuild onto Disk %2 erases that half.</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>The records of both disks name a kind of array that this program does not know. Delete it only if you no longer need its data.</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>Restarting the enclosure…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>It disappears for a few seconds. If it does not come back, press “%1”.</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>The enclosure is restarting. If it does not come back, press “%1”.</translation>
    </message>
    <message id="ui_said">
        <source></source>
        <translation>%1. %2</translation>
    </message>
    <message id="ui_said_array">
        <source></source>
        <translation>%1: %2. %3</translation>
    </message>
    <message id="ui_volume_in_use">
        <source></source>
        <translation>The volume of the enclosure is in use, so nothing has been changed.</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>It could not be determined whether the volume of the enclosure is in use, so nothing has been changed.</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>Unmount the file systems.</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>Switch off the swap area (swapoff).</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>Stop what holds the volume, such as encryption, LVM or software RAID.</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>Stop what still has the file system open, such as a container, or restart the computer.</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>Eject the volume, then disconnect the enclosure and connect it again.</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>Then try again.</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 is mounted at %2</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 is used as swap</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 is held by %2</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… and %1 more</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>Not done: %1</translation>
    </message>
</context>
</TS>
