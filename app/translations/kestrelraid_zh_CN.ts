<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>创建 RAID</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>删除 RAID</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>RAID 配置</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>配置</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>重建</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>刷新</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>RAID 状态</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>重建进度</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>磁盘 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>磁盘 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>序列号</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>模式</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>物理容量</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>未配置</translation>
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
        <translation>串联</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation>（不完整）</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation>（已降级）</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>新磁盘</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>原有磁盘</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation>（源磁盘）</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation>（目标磁盘）</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation>（正在重建）</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>RAID 1 阵列缺少一块磁盘，数据目前只剩一份。阵列会依靠剩下的磁盘继续工作。请装入一块容量相同或更大的磁盘，然后进行重建。</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>两块磁盘上的 RAID 记录不匹配。您可以将要保留数据的磁盘作为源磁盘重建 RAID 1，也可以清除其中一块磁盘，或者创建新阵列。</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>注意</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>确定</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>取消</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>错误</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>重建需要两块磁盘，其中至少有一块属于 RAID 1 阵列。</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>磁盘上的所有数据都将丢失，且无法恢复。要继续吗？</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>无法创建阵列。请检查两块磁盘，然后重试。</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>无法删除阵列。请检查两块磁盘，然后重试。</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>无法清除该磁盘上的 RAID 记录。请检查该磁盘，然后重试。</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>要将磁盘 1 复制到磁盘 2 吗？磁盘 2 上的所有内容都将被覆盖，且无法恢复。</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>要将磁盘 2 复制到磁盘 1 吗？磁盘 1 上的所有内容都将被覆盖，且无法恢复。</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>无法开始重建。请检查两块磁盘，然后重试。</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>重建已完成。两块磁盘上的数据相同。</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>检测到有磁盘装入或取出，将重新读取硬盘盒。</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>无法访问硬盘盒。</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>设备</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>硬盘盒</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>系统信息</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>设备</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>最小化</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>关闭</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>清除</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>清除磁盘 1</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>清除磁盘 2</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>重新启动硬盘盒</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>正在处理</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>空盘位</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>速度快，容量相加。任一磁盘故障，数据全失。</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>两份相同的数据，允许一块磁盘故障。</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>两块磁盘首尾相接，容量相加。</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>两块独立的磁盘。</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>未连接硬盘盒</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>正在查找硬盘盒…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>正在读取硬盘盒和其中的磁盘，需要几秒钟。</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>箭头表示数据的流向，箭头所指的磁盘将被覆盖。在写入任何内容之前，会再次请您确认。</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>创建新阵列：%1。</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>删除阵列。</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>清除磁盘 1。</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>清除磁盘 2。</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>将磁盘 1 复制到磁盘 2。</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>将磁盘 2 复制到磁盘 1。</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>不写入任何内容</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>所有数据都将丢失</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>数据保留，磁盘退出阵列</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>读取此磁盘，数据保留</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>将被覆盖，数据全部丢失</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>覆盖</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>容量不足，还差 %1 个扇区。</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>复制范围会延伸到此磁盘 RAID 记录所在的位置。</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>此磁盘只用到一部分：RAID 记录位于磁盘末尾之前。</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>扇区大小不是 512 字节。</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>无法写入 RAID 记录的备份：%1。没有这份备份，仍要继续吗？</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>磁盘 1 容量不足，还差 %1 个扇区。</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>磁盘 2 容量不足，还差 %1 个扇区。</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>重新启动 %1</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>复制到此磁盘的操作尚未完成。</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>没有硬盘盒</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>正在扫描</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>没有磁盘</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>已降级</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>两份数据不一致</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>不完整</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>正在重建</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>两块磁盘上的数据相同。</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>两块磁盘均有响应，数据只有一份。</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>正在将磁盘 %1 复制到磁盘 %2。</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>用 USB 或 FireWire 连接硬盘盒。</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>打开电源，等待几秒钟。</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>如未自动出现在这里，请点击“%1”。</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>仍未出现？请先检查电源，再换一根数据线或换一个接口试试。</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>无法访问</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>无法访问硬盘盒</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1：您没有使用权限。请直接在这台电脑上登录，或向管理员申请权限，然后点击“%2”。</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>硬盘盒没有响应</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1：未作为 RAID 硬盘盒响应，或正被其他程序使用。请先弹出卷，关闭硬盘盒电源再打开，然后点击“%2”。</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>目前没有可用的硬盘盒。</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>两个盘位都是空的。请装入磁盘，然后点击“%1”。</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>盘位 %1 是空的。如需创建阵列，请在该盘位装入第二块磁盘，然后点击“%2”。</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>两块独立的磁盘。如需组成阵列，请在下方选择模式，然后点击“%1”；两块磁盘上的所有数据都将随之丢失。</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>任意一块磁盘发生故障，都不会丢失数据。无需任何操作。</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>数据分布在两块磁盘上。只要有一块发生故障，所有数据都会丢失：请在别处另存一份。</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>磁盘 2 接在磁盘 1 之后。如果其中一块发生故障，它上面的那部分数据就会丢失：请在别处另存一份。</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>缺少磁盘 %1，数据只剩磁盘 %2 上的一份。请在盘位 %1 装入容量不小于 %3 的磁盘，然后即可重建。</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>只有磁盘 %1 存有此 RAID 1 的数据。要恢复为两份，请点击“%3”，将数据复制到磁盘 %2；磁盘 %2 上的所有内容都将随之丢失。</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>只有磁盘 %1 存有此 RAID 1 的数据，而磁盘 %2 容量不足，存不下第二份。请在盘位 %2 换上容量不小于 %3 的磁盘。</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>两块磁盘各存有同一 RAID 1 的一份数据，但内容不一致；磁盘 %1 上的记录较新。请选择要保留哪一份。</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>两块磁盘各存有一份 RAID 1 的数据，但两者不匹配。请选择要保留哪一份。</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>此阵列缺少一块磁盘。如需访问数据，请将其装回，然后点击“%2”。只有在不再需要这些数据时，才可清除磁盘 %1。</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>两块磁盘上的记录不匹配。如需访问某个阵列的数据，请装回该阵列的两块磁盘，然后点击“%1”。只有在不再需要某块磁盘上的数据时，才可清除该磁盘。</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>重建期间仍可使用此卷。复制完成之前，只有磁盘 %1 存有全部数据：请勿关闭硬盘盒电源或断开连接。</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>未连接硬盘盒。</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>正在读取硬盘盒。</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>需要两块磁盘：盘位 %1 是空的。</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>需要两块磁盘：两个盘位都是空的。</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>正在进行重建。</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>请先选择 RAID 0、RAID 1 或串联。</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>没有可以删除的阵列。</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>只有完整的阵列才能删除。清除磁盘后，其中的内容将会丢失。</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>磁盘 %1 上没有 RAID 1 的数据。</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>两块磁盘上的数据已经相同。</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>这两块磁盘组成的阵列没有第二份数据。</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>盘位 %1 是空的，没有可供复制的目标磁盘。</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>记录 %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>保持不变</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>将被覆盖</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>源磁盘</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>目标磁盘</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>大约还需 %1 小时 %2 分钟</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>大约还需 %1 分钟</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>还需不到一分钟</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>暂无进展</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>正在更改阵列…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>正在写入磁盘上的记录。请勿关闭硬盘盒电源或断开连接。</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>磁盘发生故障</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>磁盘发生故障时怎么办</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>保住现有数据</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>RAID 1 的另一块磁盘存有您的全部数据，阵列会依靠它继续工作。请立即将不能丢失的内容复制到别处。请勿进行任何创建、删除或清除操作。</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>找出故障磁盘</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>如果缺少磁盘，“%1”页面会显示哪个盘位是空的。另一块磁盘的序列号可在“%2”中查看：取出磁盘之前，请与磁盘标签上的序列号核对。</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>装入新磁盘</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>新磁盘的容量不能小于故障磁盘。新磁盘上的所有内容都将被覆盖，因此请先确认其中没有需要保留的内容。</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>重建</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>在“%1”标签页上，点击箭头由剩下的磁盘指向新磁盘的按钮。在程序提示重建已完成之前，请勿关闭硬盘盒的电源。</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>RAID 0 和串联都没有第二份数据。请换一根数据线或换一个盘位再试；如果磁盘确已损坏，就只能依靠备份了。</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>显示窗口</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>磁盘 %1 存有某个 RAID 1 的完整数据，磁盘 %2 存有另一个阵列的一半数据。如果以磁盘 %2 为目标磁盘进行重建，这一半数据将会丢失。</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>本程序无法识别两块磁盘的记录中标明的阵列类型。只有在不再需要该阵列的数据时，才可将其删除。</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>正在重新启动硬盘盒…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>硬盘盒会消失几秒钟。如未重新出现，请点击“%1”。</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>正在重新启动硬盘盒。如未重新出现，请点击“%1”。</translation>
    </message>
    <message id="ui_said">
        <source></source>
        <translation>%1。%2</translation>
    </message>
    <message id="ui_said_array">
        <source></source>
        <translation>%1：%2。%3</translation>
    </message>
    <message id="ui_volume_in_use">
        <source></source>
        <translation>硬盘盒的卷正在使用中，因此未作任何更改。</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>无法确定硬盘盒的卷是否正在使用，因此未作任何更改。</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>请卸载文件系统。</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>请停用交换区（swapoff）。</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>请停止占用该卷的加密、LVM 或软件 RAID 等功能。</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>请停止仍在使用该文件系统的容器等程序，或重新启动电脑。</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>请先弹出卷，再断开硬盘盒并重新连接。</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>然后重试。</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 已挂载于 %2</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 用作交换区</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 被 %2 占用</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… 另有 %1 项</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>未执行：%1</translation>
    </message>
</context>
</TS>
