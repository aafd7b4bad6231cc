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
        <translation>A disk of the RAID 1 array is missing, so there is only one copy of the data. The array works on with the disk that is left. Add a disk of at least the same size and rebuild.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>The RAID records on the two disks do not belong together. Rebuild a RAID 1 from the disk whose data you want to keep, clear a disk, or create a new array.</translation>
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
        <translation>All data on the disks will be lost and cannot be brought back. Continue?</translation>
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
        <translation>The RAID record of the disk could not be cleared. Check the disk and try again.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>Copy Disk 1 onto Disk 2? Everything on Disk 2 is overwritten and cannot be brought back.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>Copy Disk 2 onto Disk 1? Everything on Disk 1 is overwritten and cannot be brought back.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>The rebuild could not be started. Check both disks and try again.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>The rebuild is complete. Both disks hold the same data.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>A disk was added or removed. The enclosure is now read again.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>The enclosure could not be opened.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Device</translation>
    </message>
    <message id="controllers">
        <source></source>
        <translation>Enclosures</translation>
    </message>
    <message id="system_information">
        <source></source>
        <translation>System information</translation>
    </message>
    <message id="devices">
        <source></source>
        <translation>Devices</translation>
    </message>
    <message id="minimise">
        <source></source>
        <translation>Minimise</translation>
    </message>
    <message id="close">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="clear">
        <source></source>
        <translation>Clear</translation>
    </message>
    <message id="clear_disk_1">
        <source></source>
        <translation>Clear Disk 1</translation>
    </message>
    <message id="clear_disk_2">
        <source></source>
        <translation>Clear Disk 2</translation>
    </message>
    <message id="restart_enclosure">
        <source></source>
        <translation>Restart enclosure</translation>
    </message>
    <message id="working">
        <source></source>
        <translation>Busy</translation>
    </message>
    <message id="empty_bay">
        <source></source>
        <translation>empty bay</translation>
    </message>
    <message id="raid_0_meaning">
        <source></source>
        <translation>Fast, sizes added. One failed disk loses all.</translation>
    </message>
    <message id="raid_1_meaning">
        <source></source>
        <translation>Two equal copies. Either disk may fail.</translation>
    </message>
    <message id="span_meaning">
        <source></source>
        <translation>One disk after the other, sizes added.</translation>
    </message>
    <message id="not_config_meaning">
        <source></source>
        <translation>Two separate disks.</translation>
    </message>
    <message id="no_enclosure">
        <source></source>
        <translation>No enclosure attached</translation>
    </message>
    <message id="no_enclosure_advice">
        <source></source>
        <translation>Connect the enclosure by USB or FireWire and switch it on. It appears here by itself.</translation>
    </message>
    <message id="scanning">
        <source></source>
        <translation>Looking for enclosures …</translation>
    </message>
    <message id="scanning_advice">
        <source></source>
        <translation>Both disks and the array are read anew. This takes a few seconds.</translation>
    </message>
    <message id="rebuild_hint">
        <source></source>
        <translation>The arrow shows which way the data flows. The disk at its tip is overwritten. You are asked once more before anything is written.</translation>
    </message>
    <message id="plan_create">
        <source></source>
        <translation>Creates a new array: %1.</translation>
    </message>
    <message id="plan_delete">
        <source></source>
        <translation>Deletes the array.</translation>
    </message>
    <message id="plan_wipe_disk_1">
        <source></source>
        <translation>Wipes Disk 1.</translation>
    </message>
    <message id="plan_wipe_disk_2">
        <source></source>
        <translation>Wipes Disk 2.</translation>
    </message>
    <message id="plan_copy_disk_1">
        <source></source>
        <translation>Copies Disk 1 onto Disk 2.</translation>
    </message>
    <message id="plan_copy_disk_2">
        <source></source>
        <translation>Copies Disk 2 onto Disk 1.</translation>
    </message>
    <message id="plan_untouched">
        <source></source>
        <translation>nothing is written</translation>
    </message>
    <message id="plan_all_lost">
        <source></source>
        <translation>loses all data</translation>
    </message>
    <message id="plan_keeps_data">
        <source></source>
        <translation>keeps its data, leaves the array</translation>
    </message>
    <message id="plan_read">
        <source></source>
        <translation>is read, keeps its data</translation>
    </message>
    <message id="plan_overwritten">
        <source></source>
        <translation>is overwritten, all data lost</translation>
    </message>
    <message id="plan_overwrites">
        <source></source>
        <translation>overwrites</translation>
    </message>
    <message id="plan_too_small">
        <source></source>
        <translation>Too small by %1 sectors.</translation>
    </message>
    <message id="plan_record_inside_mirror">
        <source></source>
        <translation>The copy reaches the place of its RAID record.</translation>
    </message>
    <message id="plan_larger_than_used">
        <source></source>
        <translation>Only part of this disk is used: its RAID record lies before the end.</translation>
    </message>
    <message id="plan_foreign_sectors">
        <source></source>
        <translation>Its sectors do not have 512 bytes.</translation>
    </message>
    <message id="copy_failed">
        <source></source>
        <translation>The safety copy of the RAID records could not be written: %1. Go on without it?</translation>
    </message>
    <message id="too_small_for_rebuild_1">
        <source></source>
        <translation>Disk 1 is too small by %1 sectors.</translation>
    </message>
    <message id="too_small_for_rebuild_2">
        <source></source>
        <translation>Disk 2 is too small by %1 sectors.</translation>
    </message>
    <message id="restart_named">
        <source></source>
        <translation>Restart %1</translation>
    </message>
    <message id="plan_copy_unfinished">
        <source></source>
        <translation>The copy onto this disk is not finished.</translation>
    </message>
</context>
</TS>
