<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>RAID 만들기</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>RAID 삭제</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>RAID 구성</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>구성</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>재구축</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>새로 고침</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>RAID 상태</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>재구축 진행 상황</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>디스크 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>디스크 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>S/N</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>모드</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>물리 용량</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>구성 안 됨</translation>
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
        <translation>스팬</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (불완전)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (저하됨)</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>새 디스크</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>기존 디스크</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation> (원본)</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation> (대상)</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation> (재구축 중)</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>RAID 1 어레이의 디스크 하나를 찾을 수 없어 데이터가 한 벌만 남아 있습니다. 어레이는 남은 디스크로 계속 작동합니다. 용량이 같거나 더 큰 디스크를 추가한 다음 재구축하십시오.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>두 디스크의 RAID 구성 정보가 서로 맞지 않습니다. 데이터를 보존할 디스크를 바탕으로 RAID 1을 재구축하거나, 한쪽 디스크를 지우거나, 새 어레이를 만드십시오.</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>주의</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>확인</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>취소</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>경고</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>오류</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>재구축하려면 디스크가 두 개 필요하며, 그중 하나 이상이 RAID 1 어레이에 속해 있어야 합니다.</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>디스크의 모든 데이터가 손실되며 되돌릴 수 없습니다. 계속하시겠습니까?</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>어레이를 만들지 못했습니다. 두 디스크를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>어레이를 삭제하지 못했습니다. 두 디스크를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>디스크의 RAID 구성 정보를 지우지 못했습니다. 디스크를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>디스크 1을 디스크 2로 복사하시겠습니까? 디스크 2의 모든 내용을 덮어쓰며 되돌릴 수 없습니다.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>디스크 2를 디스크 1로 복사하시겠습니까? 디스크 1의 모든 내용을 덮어쓰며 되돌릴 수 없습니다.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>재구축을 시작하지 못했습니다. 두 디스크를 확인한 후 다시 시도하십시오.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>재구축이 완료되었습니다. 두 디스크에 같은 데이터가 저장되어 있습니다.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>디스크가 추가되거나 제거되었습니다. 인클로저의 정보를 다시 읽습니다.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>인클로저에 접근하지 못했습니다.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>장치</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>인클로저</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>시스템 정보</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>장치</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>최소화</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>닫기</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>지우기</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>디스크 1 지우기</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>디스크 2 지우기</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>인클로저 다시 시작</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>작업 중</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>빈 베이</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>빠름, 용량 합산. 하나만 고장 나도 전부 손실.</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>같은 데이터 두 벌. 하나가 고장 나도 유지.</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>디스크를 차례로 이어 붙임. 용량 합산.</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>서로 독립된 디스크 두 개.</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>연결된 인클로저 없음</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>인클로저를 찾는 중…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>인클로저와 디스크의 정보를 읽고 있습니다. 몇 초 정도 걸립니다.</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>화살표는 데이터가 이동하는 방향을 나타냅니다. 화살표가 가리키는 디스크의 내용을 덮어씁니다. 기록을 시작하기 전에 다시 한번 확인합니다.</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>새 어레이(%1)를 만듭니다.</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>어레이를 삭제합니다.</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>디스크 1을 지웁니다.</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>디스크 2를 지웁니다.</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>디스크 1을 디스크 2로 복사합니다.</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>디스크 2를 디스크 1로 복사합니다.</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>아무것도 기록하지 않음</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>모든 데이터 손실</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>데이터 유지, 어레이에서 제외</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>읽기만 함, 데이터 유지</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>덮어써짐, 모든 데이터 손실</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>덮어쓰기</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>용량이 %1섹터 부족합니다.</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>복사 범위가 RAID 구성 정보의 위치까지 이릅니다.</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>이 디스크는 일부만 사용됩니다. RAID 구성 정보가 디스크 끝보다 앞에 있습니다.</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>섹터 크기가 512바이트가 아닙니다.</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>RAID 구성 정보의 백업을 저장하지 못했습니다(%1). 백업 없이 계속하시겠습니까?</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>디스크 1의 용량이 %1섹터 부족합니다.</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>디스크 2의 용량이 %1섹터 부족합니다.</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>%1 다시 시작</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>이 디스크로 복사하는 작업이 끝나지 않았습니다.</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>인클로저 없음</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>검색 중</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>디스크 없음</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>정상</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>저하됨</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>내용 불일치</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>불완전</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>재구축 중</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>두 디스크에 같은 데이터가 저장되어 있습니다.</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>두 디스크 모두 응답합니다. 데이터는 한 벌뿐입니다.</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>디스크 %1에서 디스크 %2로 복사하고 있습니다.</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>인클로저를 USB 또는 FireWire로 연결하십시오.</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>전원을 켜고 몇 초 동안 기다리십시오.</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>표시되지 않으면 ‘%1’ 버튼을 누르십시오.</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>그래도 표시되지 않으면 전원이 들어오는지 확인한 다음 다른 케이블이나 포트를 사용해 보십시오.</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>접근 불가</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>인클로저에 접근할 수 없음</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1: 사용할 권한이 없습니다. 이 컴퓨터에서 직접 로그인하거나 관리자에게 권한을 요청한 다음 ‘%2’ 버튼을 누르십시오.</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>인클로저가 응답하지 않음</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1: RAID 인클로저로 응답하지 않거나 다른 프로그램이 사용 중입니다. 볼륨을 꺼내고 인클로저의 전원을 껐다 켠 다음 ‘%2’ 버튼을 누르십시오.</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>지금 사용할 수 있는 인클로저가 없습니다.</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>두 베이가 모두 비어 있습니다. 디스크를 넣은 다음 ‘%1’ 버튼을 누르십시오.</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>베이 %1에 디스크가 없습니다. 어레이를 만들려면 이 베이에 두 번째 디스크를 넣은 다음 ‘%2’ 버튼을 누르십시오.</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>서로 독립된 디스크 두 개입니다. 하나로 묶으려면 아래에서 모드를 선택하고 ‘%1’ 버튼을 누르십시오. 이때 두 디스크의 모든 내용이 손실됩니다.</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>어느 한 디스크가 고장 나도 데이터는 손실되지 않습니다. 따로 할 일은 없습니다.</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>데이터가 두 디스크에 나뉘어 저장되어 있습니다. 하나만 고장 나도 전부 손실되므로 다른 곳에 사본을 보관하십시오.</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>디스크 1이 끝나는 곳에서 디스크 2가 이어집니다. 하나가 고장 나면 그 디스크의 데이터가 손실되므로 다른 곳에 사본을 보관하십시오.</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>베이 %1의 디스크를 찾을 수 없어 데이터가 디스크 %2에 한 벌만 있습니다. 베이 %1에 %3 이상의 디스크를 넣으면 재구축할 수 있습니다.</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>이 RAID 1의 데이터는 디스크 %1에만 있습니다. 다시 두 벌로 만들려면 ‘%3’ 버튼으로 디스크 %2에 복사하십시오. 이때 디스크 %2의 모든 내용이 손실됩니다.</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>이 RAID 1의 데이터는 디스크 %1에만 있으며, 디스크 %2에는 복사할 용량이 부족합니다. 베이 %2에 %3 이상의 디스크를 넣으십시오.</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>두 디스크는 같은 RAID 1에 속하지만 내용이 서로 다릅니다. 구성 정보는 디스크 %1의 것이 더 최근입니다. 어느 쪽 내용을 남길지 선택하십시오.</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>두 디스크에 모두 RAID 1의 데이터가 있지만 서로 짝이 맞지 않습니다. 어느 쪽 내용을 남길지 선택하십시오.</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>이 어레이의 디스크 하나가 없습니다. 데이터를 사용하려면 그 디스크를 다시 넣고 ‘%2’ 버튼을 누르십시오. 데이터가 더 이상 필요하지 않을 때만 디스크 %1 지우기를 실행하십시오.</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>두 디스크의 구성 정보가 서로 맞지 않습니다. 데이터를 사용하려면 같은 어레이의 디스크를 다시 함께 넣고 ‘%1’ 버튼을 누르십시오. 데이터가 더 이상 필요하지 않은 디스크만 지우십시오.</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>재구축 중에도 볼륨을 사용할 수 있습니다. 복사가 끝날 때까지 전체 데이터는 디스크 %1에만 있으므로 인클로저의 전원을 끄거나 케이블을 뽑지 마십시오.</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>연결된 인클로저가 없습니다.</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>인클로저의 정보를 읽고 있습니다.</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>디스크 두 개가 필요하지만 베이 %1에 디스크가 없습니다.</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>디스크 두 개가 필요하지만 두 베이가 모두 비어 있습니다.</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>재구축이 진행 중입니다.</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>먼저 RAID 0, RAID 1, 스팬 중 하나를 선택하십시오.</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>삭제할 어레이가 없습니다.</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>디스크가 모두 있는 어레이만 삭제할 수 있습니다. 디스크를 지우면 그 디스크의 내용이 손실됩니다.</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>디스크 %1에는 RAID 1의 데이터가 없습니다.</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>두 디스크에 이미 같은 데이터가 저장되어 있습니다.</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>이 어레이에는 데이터가 한 벌만 저장됩니다.</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>베이 %1에 디스크가 없어 복사할 대상이 없습니다.</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>구성 정보 %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>변경 없음</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>덮어써짐</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>사용 중</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>원본</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>대상</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>약 %1시간 %2분 남음</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>약 %1분 남음</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>1분 미만 남음</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>진행 멈춤</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>어레이를 변경하는 중…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>디스크의 구성 정보를 기록하고 있습니다. 인클로저의 전원을 끄거나 케이블을 뽑지 마십시오.</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>디스크가 고장 났을 때</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>디스크가 고장 났을 때 할 일</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>남은 데이터 지키기</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>RAID 1에서는 다른 디스크에 모든 데이터가 있고, 어레이도 그 디스크로 계속 작동합니다. 잃어서는 안 되는 데이터를 지금 다른 곳에 복사하십시오. 만들기, 삭제, 지우기 작업은 하지 마십시오.</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>고장 난 디스크 찾기</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>디스크를 찾을 수 없으면 ‘%1’ 페이지에서 빈 베이를 확인하십시오. 다른 디스크의 일련번호(S/N)는 ‘%2’ 페이지에 있습니다. 디스크를 꺼내기 전에 라벨의 번호와 비교하십시오.</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>새 디스크 넣기</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>고장 난 디스크와 용량이 같거나 더 커야 합니다. 디스크의 모든 내용을 덮어쓰므로 필요한 데이터가 없는 디스크를 사용하십시오.</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>재구축하기</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>‘%1’ 탭에서, 남은 디스크에서 새 디스크 쪽을 가리키는 화살표 버튼을 누르십시오. 재구축이 완료되었다는 메시지가 나타날 때까지 인클로저의 전원을 끄지 마십시오.</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>RAID 0 및 스팬은 데이터를 한 벌만 저장합니다. 케이블을 바꾸거나 다른 베이에 넣어 다시 시도해 보십시오. 디스크가 고장 났다면 백업으로만 복구할 수 있습니다.</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>창 표시</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>디스크 %1에는 RAID 1의 데이터가 모두 있지만, 디스크 %2에는 다른 어레이의 절반만 있습니다. 디스크 %2에 RAID 1을 재구축하면 그 절반의 데이터가 손실됩니다.</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>두 디스크의 구성 정보에 이 프로그램이 알지 못하는 종류의 어레이가 기록되어 있습니다. 데이터가 더 이상 필요하지 않을 때만 어레이를 삭제하십시오.</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>인클로저를 다시 시작하는 중…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>몇 초 동안 표시되지 않습니다. 다시 표시되지 않으면 ‘%1’ 버튼을 누르십시오.</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>인클로저를 다시 시작하고 있습니다. 다시 표시되지 않으면 ‘%1’ 버튼을 누르십시오.</translation>
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
        <translation>인클로저의 볼륨이 사용 중이므로 아무것도 변경하지 않았습니다.</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>인클로저의 볼륨이 사용 중인지 확인할 수 없어 아무것도 변경하지 않았습니다.</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>파일 시스템의 마운트를 해제하십시오.</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>스왑 영역을 비활성화하십시오(swapoff).</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>암호화, LVM, 소프트웨어 RAID 등 볼륨을 사용 중인 기능을 중지하십시오.</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>컨테이너 등 파일 시스템을 아직 사용 중인 프로그램을 종료하거나 컴퓨터를 다시 시작하십시오.</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>볼륨을 꺼낸 다음 인클로저를 분리했다가 다시 연결하십시오.</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>그런 다음 다시 시도하십시오.</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1: %2에 마운트됨</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1: 스왑으로 사용 중</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1: %2에서 사용 중</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… 외 %1개</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>실행하지 않음: ‘%1’</translation>
    </message>
</context>
</TS>
