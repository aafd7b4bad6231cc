<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>RAID を作成</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>RAID を削除</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>RAID の構成</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>構成</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>再構築</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>更新</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>RAID の状態</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>再構築の進行状況</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>ディスク 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>ディスク 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>S/N</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>モード</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>物理容量</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>未構成</translation>
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
        <translation>スパニング</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation>（不完全）</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation>（縮退）</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>新しいディスク</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>既存のディスク</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation>（コピー元）</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation>（コピー先）</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation>（再構築中）</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>RAID 1 アレイのディスクが 1 台見つからず、データは残りの 1 台にしかありません。アレイはその 1 台で動作しています。同じ容量以上のディスクを追加して再構築してください。</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>2 台のディスクの RAID 構成情報が一致しません。データを残したいディスクから RAID 1 を再構築するか、片方のディスクを消去するか、新しいアレイを作成してください。</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>注意</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>キャンセル</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>警告</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>エラー</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>再構築にはディスクが 2 台必要です。そのうち 1 台以上は RAID 1 アレイのディスクである必要があります。</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>ディスク上のデータはすべて失われ、元に戻すことはできません。続けますか？</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>アレイを作成できませんでした。両方のディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>アレイを削除できませんでした。両方のディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>ディスクの RAID 構成情報を消去できませんでした。ディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>ディスク 1 をディスク 2 にコピーしますか？　ディスク 2 の内容はすべて上書きされ、元に戻すことはできません。</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>ディスク 2 をディスク 1 にコピーしますか？　ディスク 1 の内容はすべて上書きされ、元に戻すことはできません。</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>再構築を開始できませんでした。両方のディスクを確認して、もう一度お試しください。</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>再構築が完了しました。2 台のディスクに同じデータが保存されています。</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>ディスクの追加または取り外しがありました。ケースの情報を読み取り直します。</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>ケースにアクセスできませんでした。</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>デバイス</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>ケース</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>システム情報</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>デバイス</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>最小化</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>閉じる</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>消去</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>ディスク 1 を消去</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>ディスク 2 を消去</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>ケースを再起動</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>処理中</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>空きベイ</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>高速で容量は合算。1 台の故障で全データ消失。</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>2 台に同じデータを保存。1 台の故障に耐える。</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>ディスクを順に連結。容量は合算。</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>独立した 2 台のディスク。</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>ケースが接続されていません</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>ケースを検索中…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>ケースとディスクを確認しています。数秒かかります。</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>矢印はデータの流れる向きを示します。矢印の先にあるディスクは上書きされます。書き込みを始める前に、もう一度確認します。</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>新しいアレイ（%1）を作成します。</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>アレイを削除します。</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>ディスク 1 を消去します。</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>ディスク 2 を消去します。</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>ディスク 1 をディスク 2 にコピーします。</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>ディスク 2 をディスク 1 にコピーします。</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>何も書き込まれません</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>データはすべて失われます</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>データを残してアレイから外れます</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>読み取られ、データは残ります</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>上書きされ、データはすべて失われます</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>上書き</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>容量が %1 セクター足りません。</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>コピー範囲が RAID 構成情報の位置に及びます。</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>このディスクは一部しか使われていません。RAID 構成情報が末尾より手前にあります。</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>セクターサイズが 512 バイトではありません。</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>RAID 構成情報のバックアップを保存できませんでした（%1）。バックアップなしで続けますか？</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>ディスク 1 の容量が %1 セクター足りません。</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>ディスク 2 の容量が %1 セクター足りません。</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>%1 を再起動</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>このディスクへのコピーは完了していません。</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>ケース未接続</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>検索中</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>ディスクなし</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>正常</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>縮退</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>内容不一致</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>不完全</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>再構築中</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>2 台のディスクに同じデータが保存されています。</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>2 台とも応答しています。二重化はされていません。</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>ディスク %1 をディスク %2 にコピーしています。</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>ケースを USB または FireWire で接続します。</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>電源を入れて、数秒待ちます。</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>表示されない場合は、「%1」を押します。</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>それでも表示されない場合は、ケースの電源を確認し、別のケーブルやポートをお試しください。</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>アクセス不可</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>ケースにアクセスできません</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1：使用する権限がありません。このコンピューターに直接ログインするか、管理者にアクセス権の付与を依頼してから、「%2」を押してください。</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>ケースが応答しません</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1：RAID ケースとして応答しないか、別のプログラムが使用しています。ボリュームを取り出し、ケースの電源を入れ直してから、「%2」を押してください。</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>現在使用できるケースがありません。</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>どちらのベイも空です。ディスクを入れて、「%1」を押してください。</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>ベイ %1 は空です。アレイを作成するには、このベイに 2 台目のディスクを入れて、「%2」を押してください。</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>独立した 2 台のディスクです。1 つにまとめるには、下でモードを選んで「%1」を押してください。その際、両方のディスクの内容はすべて失われます。</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>どちらか 1 台が故障しても、データは失われません。必要な操作はありません。</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>データは 2 台に分散して保存されています。1 台が故障するとすべて失われるため、別の場所にもコピーを保管してください。</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>ディスク 1 の続きがディスク 2 に保存されます。1 台が故障するとその分のデータが失われるため、別の場所にもコピーを保管してください。</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>ディスク %1 が見つからないため、データはディスク %2 にしかありません。ベイ %1 に %3 以上のディスクを入れると、再構築できます。</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>この RAID 1 のデータはディスク %1 にしかありません。再び二重化するには、「%3」でディスク %2 にコピーしてください。その際、ディスク %2 の内容はすべて失われます。</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>この RAID 1 のデータはディスク %1 にしかなく、ディスク %2 はコピー先としては容量が足りません。ベイ %2 に %3 以上のディスクを入れてください。</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>2 台のディスクは同じ RAID 1 のものですが、内容が異なります。構成情報の日時はディスク %1 のほうが新しくなっています。どちらの内容を残すか選んでください。</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>どちらのディスクにも RAID 1 のデータがありますが、同じ組のものではありません。どちらの内容を残すか選んでください。</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>このアレイは片方のディスクがありません。データを使うには、そのディスクを戻して「%2」を押してください。ディスク %1 の消去は、データが不要になった場合にのみ行ってください。</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>2 台のディスクの構成情報が一致しません。データを使うには、同じアレイの 2 台を戻して「%1」を押してください。ディスクの消去は、データが不要になった場合にのみ行ってください。</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>再構築中もボリュームは使用できます。コピーが完了するまで、すべてのデータがあるのはディスク %1 だけです。ケースの電源を切ったりケーブルを抜いたりしないでください。</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>ケースが接続されていません。</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>ケースの情報を読み取っています。</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>ディスクが 2 台必要ですが、ベイ %1 は空です。</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>ディスクが 2 台必要ですが、どちらのベイも空です。</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>再構築を実行中です。</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>先に RAID 0、RAID 1、スパニングのいずれかを選択してください。</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>削除するアレイがありません。</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>削除できるのは、ディスクがそろったアレイだけです。ディスクを消去すると、その内容は失われます。</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>ディスク %1 には RAID 1 のデータがありません。</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>2 台のディスクには、すでに同じデータが保存されています。</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>このアレイでは、データは二重化されません。</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>ベイ %1 は空です。コピー先のディスクがありません。</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>構成情報 %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>変更なし</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>上書き</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>使用中</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>コピー元</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>コピー先</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>残り約 %1 時間 %2 分</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>残り約 %1 分</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>残り 1 分未満</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>停滞中</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>アレイを変更中…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>ディスクの構成情報を書き込んでいます。ケースの電源を切ったりケーブルを抜いたりしないでください。</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>ディスクが故障したとき</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>ディスクが故障したときの対処方法</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>残っているデータを守る</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>RAID 1 では、もう 1 台のディスクにすべてのデータがあり、アレイはそのディスクで動作を続けます。失いたくないデータは、今すぐ別の場所にコピーしてください。作成、削除、消去はどれも行わないでください。</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>故障したディスクを見分ける</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>ディスクが見つからない場合、どのベイが空かは「%1」ページで確認できます。もう 1 台のシリアル番号（S/N）は「%2」に表示されます。ディスクを取り出す前に、ラベルの番号と照合してください。</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>新しいディスクを入れる</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>故障したディスクと同じか、それより大きい容量が必要です。内容はすべて上書きされるため、必要なデータの入っていないディスクを使ってください。</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>再構築する</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>「%1」タブで、残ったディスクから新しいディスクへ矢印が向いているボタンを押します。再構築の完了を知らせるメッセージが表示されるまで、ケースの電源を切らないでください。</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>RAID 0 とスパニングでは、データは二重化されません。別のケーブルやベイでもう一度ディスクを試してください。故障していれば、データはバックアップからしか戻せません。</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>ディスク %1 には RAID 1 のデータがすべてありますが、ディスク %2 は別のアレイの片方です。ディスク %2 をコピー先にして再構築すると、その内容は失われます。</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>2 台のディスクの構成情報は、このプログラムが対応していない種類のアレイのものです。アレイの削除は、データが不要になった場合にのみ行ってください。</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>ケースを再起動中…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>数秒間、表示されなくなります。再び表示されない場合は、「%1」を押してください。</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>ケースを再起動しています。再び表示されない場合は、「%1」を押してください。</translation>
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
        <translation>ケースのボリュームが使用中のため、何も変更していません。</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>ケースのボリュームが使用中かどうかを確認できなかったため、何も変更していません。</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>ファイルシステムをアンマウントしてください。</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>スワップ領域を無効にしてください（swapoff）。</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>暗号化、LVM、ソフトウェア RAID など、ボリュームを使用しているものを停止してください。</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>コンテナーなど、ファイルシステムを開いているものを終了するか、コンピューターを再起動してください。</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>ボリュームを取り出してから、ケースをいったん取り外し、接続し直してください。</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>その後、もう一度お試しください。</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 は %2 にマウントされています</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 はスワップとして使用されています</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 は %2 が使用しています</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… ほか %1 件</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>実行していません：「%1」</translation>
    </message>
</context>
</TS>
