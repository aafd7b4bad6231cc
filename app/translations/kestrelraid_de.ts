<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>RAID-Verbund erstellen</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>RAID-Verbund löschen</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>RAID-Konfiguration</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>Konfiguration</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>Wiederherstellen</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>Aktualisieren</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>RAID-Status</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>Fortschritt der Wiederherstellung</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>Festplatte 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>Festplatte 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>Seriennr.</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>Betriebsart</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>Physische Größe</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>Nicht konfiguriert</translation>
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
        <translation>Verkettung</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (unvollständig)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (degradiert)</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>neue Platte</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>alte Platte</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation> (Quelle)</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation> (Ziel)</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation> (wird wiederhergestellt)</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>Eine Festplatte des RAID-1-Verbunds fehlt, es gibt nur eine Kopie der Daten. Der Verbund läuft weiter. Setzen Sie eine mindestens gleich große Festplatte ein und stellen Sie ihn wieder her.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>Die RAID-Einträge passen nicht zusammen. Stellen Sie ein RAID 1 von der Festplatte wieder her, deren Daten Sie behalten wollen, leeren Sie eine Festplatte oder erstellen Sie einen neuen Verbund.</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>Achtung</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>Warnung</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>Fehler</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>Für eine Wiederherstellung werden zwei Festplatten benötigt, von denen mindestens eine zu einem RAID-1-Verbund gehört.</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>Alle Daten auf den Festplatten gehen verloren und lassen sich nicht zurückholen. Fortfahren?</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>Der RAID-Verbund konnte nicht erstellt werden. Prüfen Sie beide Festplatten und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>Der RAID-Verbund konnte nicht gelöscht werden. Prüfen Sie beide Festplatten und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>Der RAID-Eintrag der Festplatte konnte nicht entfernt werden. Prüfen Sie die Festplatte und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>Festplatte 1 auf Festplatte 2 kopieren? Alles, was auf Festplatte 2 steht, wird überschrieben und lässt sich nicht zurückholen.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>Festplatte 2 auf Festplatte 1 kopieren? Alles, was auf Festplatte 1 steht, wird überschrieben und lässt sich nicht zurückholen.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>Die Wiederherstellung konnte nicht gestartet werden. Prüfen Sie beide Festplatten und versuchen Sie es noch einmal.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>Die Wiederherstellung ist abgeschlossen. Beide Festplatten enthalten jetzt dieselben Daten.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>Eine Festplatte wurde eingesetzt oder entfernt. Das Gehäuse wird jetzt neu eingelesen.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>Auf das Gehäuse kann nicht zugegriffen werden.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Gerät</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>Gehäuse</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>System­information</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>Geräte</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>Minimieren</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>Leeren</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>Festplatte 1 leeren</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>Festplatte 2 leeren</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>Gehäuse neu starten</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>Vorgang läuft</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>leerer Schacht</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>Schnell, Größen addiert, kein Ausfallschutz.</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>Zwei Kopien: Eine Platte darf ausfallen.</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>Eine Platte nach der anderen, Größe addiert.</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>Zwei voneinander unabhängige Festplatten.</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>Kein Gehäuse angeschlossen</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>Suche nach Gehäusen …</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>Die Gehäuse und ihre Festplatten werden eingelesen. Das dauert einige Sekunden.</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>Der Pfeil zeigt, wohin die Daten fließen. Die Festplatte an seiner Spitze wird überschrieben. Vor dem Schreiben werden Sie noch einmal gefragt.</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>Erstellt einen neuen Verbund: %1.</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>Löscht den Verbund.</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>Leert Festplatte 1.</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>Leert Festplatte 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>Kopiert Festplatte 1 auf Festplatte 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>Kopiert Festplatte 2 auf Festplatte 1.</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>es wird nichts geschrieben</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>verliert alle Daten</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>behält die Daten, verlässt den Verbund</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>wird gelesen, behält die Daten</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>wird überschrieben, verliert alle Daten</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>überschreibt</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>Um %1 Sektoren zu klein.</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>Die Kopie reicht in den Bereich des RAID-Eintrags hinein.</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>Nur ein Teil der Platte wird genutzt: Der RAID-Eintrag liegt vor dem Ende.</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>Die Sektoren sind nicht 512 Byte groß.</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>Die Sicherheitskopie der RAID-Einträge konnte nicht geschrieben werden: %1. Ohne sie fortfahren?</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>Festplatte 1 ist um %1 Sektoren zu klein.</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>Festplatte 2 ist um %1 Sektoren zu klein.</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>%1 neu starten</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>Die Kopie auf diese Platte ist nicht abgeschlossen.</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>Kein Gehäuse</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>Suche läuft</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>Keine Festplatten</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>Fehlerfrei</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>Degradiert</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>Kopien verschieden</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>Unvollständig</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>Wiederherstellung läuft</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>Beide Festplatten enthalten dieselben Daten.</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>Beide Festplatten antworten. Es gibt keine Zweitkopie.</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>Festplatte %1 wird auf Festplatte %2 kopiert.</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>Gehäuse über USB oder FireWire anschließen.</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>Gehäuse einschalten, einige Sekunden warten.</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>Es erscheint hier, sonst „%1“ klicken.</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>Immer noch nichts? Prüfen Sie die Stromversorgung und versuchen Sie es dann mit einem anderen Kabel oder Anschluss.</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>Kein Zugriff</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>Kein Zugriff auf das Gehäuse</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1: Ihnen fehlen die Zugriffsrechte. Melden Sie sich direkt an diesem Computer an oder bitten Sie den Administrator um Zugriff. Klicken Sie dann auf „%2“.</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>Das Gehäuse antwortet nicht</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1: Keine Antwort als RAID-Gehäuse, oder ein anderes Programm greift darauf zu. Werfen Sie das Volume aus, schalten Sie das Gehäuse aus und wieder ein und klicken Sie dann auf „%2“.</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>Zurzeit kann kein Gehäuse verwendet werden.</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>Beide Schächte sind leer. Setzen Sie eine Festplatte ein und klicken Sie dann auf „%1“.</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>Schacht %1 ist leer. Um einen Verbund zu erstellen, setzen Sie dort eine zweite Festplatte ein und klicken Sie auf „%2“.</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>Zwei einzelne Festplatten. Um sie zu verbinden, wählen Sie unten eine Betriebsart und klicken Sie auf „%1“; dabei geht alles auf beiden Festplatten verloren.</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>Eine der beiden Festplatten darf ausfallen, ohne dass Daten verloren gehen. Sie müssen nichts tun.</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>Die Daten sind auf beide Festplatten verteilt. Fällt eine aus, ist alles verloren: Bewahren Sie anderswo eine Kopie auf.</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>Festplatte 2 setzt fort, wo Festplatte 1 endet. Fällt eine aus, ist ihr Teil der Daten verloren: Bewahren Sie anderswo eine Kopie auf.</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>Festplatte %1 fehlt, die einzige Kopie liegt auf Festplatte %2. Setzen Sie eine Festplatte mit mindestens %3 in Schacht %1 ein; danach ist die Wiederherstellung möglich.</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>Nur Festplatte %1 enthält eine Kopie dieses RAID 1. Um wieder zwei zu haben, kopieren Sie diese mit „%3“ auf Festplatte %2; dabei geht alles auf Festplatte %2 verloren.</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>Nur Festplatte %1 enthält eine Kopie dieses RAID 1, und Festplatte %2 ist zu klein für eine zweite. Setzen Sie eine Festplatte mit mindestens %3 in Schacht %2 ein.</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>Beide Festplatten enthalten eine Kopie desselben RAID 1, doch die Kopien weichen voneinander ab; der Eintrag auf Festplatte %1 ist neuer. Wählen Sie, welche Kopie Sie behalten.</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>Beide Festplatten enthalten eine Kopie eines RAID 1, aber die Kopien passen nicht zusammen. Wählen Sie, welche Sie behalten.</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>Setzen Sie die fehlende Festplatte des Verbunds ein und klicken Sie auf „%2“, um an die Daten zu kommen. Leeren Sie Festplatte %1 nur, wenn Sie die Daten nicht mehr brauchen.</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>Die Einträge passen nicht zusammen. Für den Zugriff setzen Sie beide Platten eines Verbunds ein und klicken Sie auf „%1“. Leeren Sie keine Platte, deren Daten Sie noch brauchen.</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>Das Volume bleibt benutzbar. Bis die Kopie fertig ist, enthält nur Festplatte %1 alle Daten: Schalten Sie das Gehäuse nicht aus und ziehen Sie es nicht ab.</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>Es ist kein Gehäuse angeschlossen.</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>Die Gehäuse werden gerade eingelesen.</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>Zwei Festplatten sind nötig: Schacht %1 ist leer.</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>Zwei Festplatten sind nötig: Beide Schächte sind leer.</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>Eine Wiederherstellung läuft.</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>Wählen Sie zuerst RAID 0, RAID 1 oder Verkettung.</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>Es gibt keinen Verbund zum Löschen.</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>Nur ein vollständiger Verbund lässt sich löschen. Beim Leeren einer Festplatte geht alles verloren, was darauf steht.</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>Festplatte %1 enthält keine Kopie eines RAID 1.</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>Beide Festplatten enthalten bereits dieselben Daten.</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>Die Festplatten bilden einen Verbund ohne Zweitkopie.</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>Schacht %1 ist leer: Es gibt keine Zielfestplatte.</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>Eintrag %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>bleibt</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>gelöscht</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>aktiv</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>Quelle</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>Ziel</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>noch etwa %1 Std. %2 Min.</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>noch etwa %1 Min.</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>noch weniger als eine Minute</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>steht still</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>Der Verbund wird geändert …</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>Die RAID-Einträge werden geschrieben. Schalten Sie das Gehäuse nicht aus und ziehen Sie es nicht ab.</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>Eine Festplatte ist ausgefallen</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>Was tun, wenn eine Festplatte ausfällt?</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>Sichern, was noch da ist</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>Die andere Festplatte eines RAID 1 enthält alle Ihre Daten, und der Verbund läuft mit ihr weiter. Kopieren Sie jetzt an einen anderen Ort, was Sie nicht verlieren dürfen. Erstellen, löschen und leeren Sie nichts.</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>Die ausgefallene Festplatte finden</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>Fehlt eine Festplatte, zeigt die Seite „%1“ den leeren Schacht. Die Seriennummer der anderen Festplatte steht unter „%2“: Vergleichen Sie sie mit dem Aufkleber, bevor Sie eine Festplatte herausnehmen.</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>Eine neue Festplatte einsetzen</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>Sie muss mindestens so groß sein wie die alte. Alles darauf wird überschrieben; nehmen Sie also eine, auf der nichts steht, was Sie brauchen.</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>Wiederherstellen</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>Klicken Sie im Reiter „%1“ auf die Schaltfläche, deren Pfeil von der verbliebenen zur neuen Festplatte zeigt. Lassen Sie das Gehäuse eingeschaltet, bis das Programm das Ende der Wiederherstellung meldet.</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>Bei RAID 0 und Verkettung gibt es keine Zweitkopie. Versuchen Sie es mit einem anderen Kabel oder im anderen Schacht; ist die Festplatte defekt, hilft nur eine Datensicherung.</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>Fenster anzeigen</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>Festplatte %1 enthält eine vollständige Kopie eines RAID 1, Festplatte %2 die Hälfte eines anderen Verbunds. Eine Wiederherstellung auf Festplatte %2 löscht diese Hälfte.</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>Die Einträge beider Festplatten nennen eine Verbundart, die dieses Programm nicht kennt. Löschen Sie den Verbund nur, wenn Sie seine Daten nicht mehr brauchen.</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>Das Gehäuse startet neu …</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>Es verschwindet für einige Sekunden. Erscheint es nicht wieder, klicken Sie auf „%1“.</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>Das Gehäuse startet neu. Erscheint es nicht wieder, klicken Sie auf „%1“.</translation>
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
        <translation>Das Volume des Gehäuses wird verwendet; deshalb wurde nichts geändert.</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>Es ließ sich nicht feststellen, ob das Volume des Gehäuses verwendet wird; deshalb wurde nichts geändert.</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>Hängen Sie die Dateisysteme aus.</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>Schalten Sie den Auslagerungsbereich ab (swapoff).</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>Beenden Sie, was das Volume belegt, etwa Verschlüsselung, LVM oder Software-RAID.</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>Beenden Sie, was das Dateisystem noch geöffnet hat, etwa einen Container, oder starten Sie den Computer neu.</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>Werfen Sie das Volume aus, ziehen Sie das Gehäuse ab und schließen Sie es wieder an.</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>Versuchen Sie es dann noch einmal.</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 ist unter %2 eingehängt</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 dient als Auslagerungsbereich</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 ist durch %2 belegt</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… und %1 weitere</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>Nicht ausgeführt: %1</translation>
    </message>
</context>
</TS>
