<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>建立 RAID</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>刪除 RAID</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>RAID 設定</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>設定</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>重建</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>重新整理</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>RAID 狀態</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>重建進度</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>磁碟 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>磁碟 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>序號</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>模式</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>實體容量</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>未設定</translation>
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
        <translation>串接</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation>（不完整）</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation>（已降級）</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>新磁碟</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>原有磁碟</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation>（來源磁碟）</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation>（目標磁碟）</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation>（重建中）</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>RAID 1 陣列少了一顆磁碟，資料目前只剩一份。陣列會以剩下的磁碟繼續運作。請裝入一顆容量相同或更大的磁碟，再進行重建。</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>兩顆磁碟上的 RAID 記錄並不相符。您可以將要保留資料的磁碟當作來源磁碟來重建 RAID 1、清除其中一顆磁碟，或建立新的陣列。</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>注意</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>確定</translation>
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
        <translation>錯誤</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>重建需要兩顆磁碟，其中至少一顆必須屬於 RAID 1 陣列。</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>磁碟上的所有資料都會遺失，而且無法救回。要繼續嗎？</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>無法建立陣列。請檢查兩顆磁碟，然後再試一次。</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>無法刪除陣列。請檢查兩顆磁碟，然後再試一次。</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>無法清除這顆磁碟上的 RAID 記錄。請檢查磁碟，然後再試一次。</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>要將磁碟 1 複製到磁碟 2 嗎？磁碟 2 上的所有內容都會被覆寫，而且無法救回。</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>要將磁碟 2 複製到磁碟 1 嗎？磁碟 1 上的所有內容都會被覆寫，而且無法救回。</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>無法開始重建。請檢查兩顆磁碟，然後再試一次。</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>重建完成，兩顆磁碟上的資料相同。</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>偵測到有磁碟裝入或取出，將重新讀取外接盒。</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>無法存取外接盒。</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>裝置</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>外接盒</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>系統資訊</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>裝置</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>最小化</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>關閉</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>清除</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>清除磁碟 1</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>清除磁碟 2</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>重新啟動外接盒</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>處理中</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>空的磁碟槽</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>速度快，容量加總。一顆故障，資料全失。</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>兩份相同的資料，容許一顆磁碟故障。</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>兩顆磁碟前後相接，容量加總。</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>兩顆各自獨立的磁碟。</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>未連接外接盒</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>正在尋找外接盒…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>正在讀取外接盒和其中的磁碟，需要幾秒鐘。</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>箭頭代表資料的流向，箭頭所指的磁碟會被覆寫。寫入任何內容之前，會再請您確認一次。</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>建立新的陣列：%1。</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>刪除陣列。</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>清除磁碟 1。</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>清除磁碟 2。</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>將磁碟 1 複製到磁碟 2。</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>將磁碟 2 複製到磁碟 1。</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>不寫入任何內容</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>所有資料都會遺失</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>保留資料，磁碟退出陣列</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>讀取此磁碟，保留資料</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>會被覆寫，資料全部遺失</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>覆寫</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>容量不足，還差 %1 個磁區。</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>複製範圍會延伸到這顆磁碟 RAID 記錄所在的位置。</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>這顆磁碟只用到一部分：RAID 記錄位於磁碟結尾之前。</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>磁區大小不是 512 位元組。</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>無法寫入 RAID 記錄的備份：%1。沒有這份備份，仍要繼續嗎？</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>磁碟 1 容量不足，還差 %1 個磁區。</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>磁碟 2 容量不足，還差 %1 個磁區。</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>重新啟動 %1</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>複製到這顆磁碟的作業尚未完成。</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>沒有外接盒</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>掃描中</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>沒有磁碟</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>已降級</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>兩份資料不一致</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>不完整</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>重建中</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>兩顆磁碟上的資料相同。</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>兩顆磁碟都有回應，資料只有一份。</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>正在將磁碟 %1 複製到磁碟 %2。</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>以 USB 或 FireWire 連接外接盒。</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>開啟電源，等候幾秒鐘。</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>若未自動出現在這裡，請按「%1」。</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>還是沒有出現嗎？請先檢查電源，再換一條傳輸線或換一個連接埠試試看。</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>無法存取</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>無法存取外接盒</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1：您沒有使用權限。請直接在這部電腦上登入，或向管理員要求權限，然後按「%2」。</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>外接盒沒有回應</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1：未以 RAID 外接盒的身分回應，或正由其他程式使用。請先退出磁碟區，關閉外接盒電源再開啟，然後按「%2」。</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>目前沒有可用的外接盒。</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>兩個磁碟槽都是空的。請裝入磁碟，再按「%1」。</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>磁碟槽 %1 是空的。若要建立陣列，請在此磁碟槽裝入第二顆磁碟，再按「%2」。</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>兩顆各自獨立的磁碟。若要組成陣列，請在下方選擇模式，再按「%1」；兩顆磁碟上的所有資料都會因此遺失。</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>任一顆磁碟故障，都不會遺失資料。您不需要做任何事。</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>資料分散在兩顆磁碟上。只要有一顆故障，所有資料都會遺失：請在別處另存一份。</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>磁碟 2 接在磁碟 1 之後。若其中一顆故障，該磁碟上的那部分資料就會遺失：請在別處另存一份。</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>少了磁碟 %1，資料只剩磁碟 %2 上的一份。請在磁碟槽 %1 裝入容量至少 %3 的磁碟，之後即可重建。</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>只有磁碟 %1 存有這個 RAID 1 的資料。若要恢復成兩份，請按「%3」，將資料複製到磁碟 %2；磁碟 %2 上的所有內容都會因此遺失。</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>只有磁碟 %1 存有這個 RAID 1 的資料，而磁碟 %2 容量不足，放不下第二份。請在磁碟槽 %2 換上容量至少 %3 的磁碟。</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>兩顆磁碟各存有同一個 RAID 1 的一份資料，但內容不一致；磁碟 %1 上的記錄較新。請選擇要保留哪一份。</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>兩顆磁碟各存有一份 RAID 1 的資料，但彼此並不相符。請選擇要保留哪一份。</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>這個陣列少了一顆磁碟。若要存取資料，請將它裝回，再按「%2」。確定不再需要這些資料時，才可清除磁碟 %1。</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>兩顆磁碟上的記錄並不相符。若要存取某個陣列的資料，請裝回該陣列的兩顆磁碟，再按「%1」。確定不再需要磁碟上的資料時，才可清除該磁碟。</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>仍可繼續使用磁碟區。複製完成之前，只有磁碟 %1 存有全部資料：請勿關閉外接盒電源或拔除傳輸線。</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>未連接外接盒。</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>正在讀取外接盒。</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>需要兩顆磁碟：磁碟槽 %1 是空的。</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>需要兩顆磁碟：兩個磁碟槽都是空的。</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>正在進行重建。</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>請先選擇 RAID 0、RAID 1 或串接。</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>沒有可刪除的陣列。</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>只有完整的陣列才能刪除。清除磁碟後，其中的內容就會遺失。</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>磁碟 %1 上沒有 RAID 1 的資料。</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>兩顆磁碟上的資料已經相同。</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>這兩顆磁碟組成的陣列沒有第二份資料。</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>磁碟槽 %1 是空的，沒有可供複製的目標磁碟。</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>記錄 %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>維持不變</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>會被覆寫</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>來源磁碟</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>目標磁碟</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>大約還要 %1 小時 %2 分鐘</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>大約還要 %1 分鐘</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>不到一分鐘即可完成</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>沒有進展</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>正在變更陣列…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>正在寫入磁碟上的記錄。請勿關閉外接盒電源或拔除傳輸線。</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>磁碟故障</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>磁碟故障時該怎麼辦</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>保住現有的資料</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>RAID 1 的另一顆磁碟存有您的全部資料，陣列會以它繼續運作。請立即將不能遺失的內容複製到別處，並請勿建立、刪除或清除任何項目。</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>找出故障的磁碟</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>若少了磁碟，「%1」頁面會顯示哪個磁碟槽是空的。另一顆磁碟的序號列在「%2」頁面：取出磁碟之前，請先與磁碟標籤上的序號核對。</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>裝入新磁碟</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>新磁碟的容量不可小於故障的磁碟。新磁碟上的所有內容都會被覆寫，因此請先確認其中沒有需要保留的內容。</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>重建</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>在「%1」分頁中，按下箭頭從剩下的磁碟指向新磁碟的按鈕。在程式告知重建完成之前，請勿關閉外接盒的電源。</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>RAID 0 和串接都沒有第二份資料。請換一條傳輸線或換一個磁碟槽再試；如果磁碟確實故障，就只能仰賴備份了。</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>顯示視窗</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>磁碟 %1 存有某個 RAID 1 的完整資料，磁碟 %2 存有另一個陣列的一半資料。如果以磁碟 %2 為目標磁碟進行重建，這一半資料就會遺失。</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>本程式無法辨識兩顆磁碟的記錄所標示的陣列類型。確定不再需要該陣列的資料時，才可將它刪除。</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>正在重新啟動外接盒…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>外接盒會消失幾秒鐘。若未重新出現，請按「%1」。</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>正在重新啟動外接盒。若未重新出現，請按「%1」。</translation>
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
        <translation>外接盒的磁碟區正在使用中，因此未做任何變更。</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>無法確認外接盒的磁碟區是否正在使用，因此未做任何變更。</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>請卸載檔案系統。</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>請停用置換區（swapoff）。</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>請停止佔用該磁碟區的加密、LVM 或軟體 RAID 等功能。</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>請停止仍在使用該檔案系統的容器等程式，或重新啟動電腦。</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>請先退出磁碟區，再拔除外接盒並重新連接。</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>然後再試一次。</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 已掛載於 %2</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 用作置換區</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 由 %2 佔用</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… 另有 %1 項</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>未執行：%1</translation>
    </message>
</context>
</TS>
