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
        <translation>Aneinanderreihung</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (unvollständig)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (herabgestuft)</translation>
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
        <translation>Eine Festplatte des RAID-1-Verbunds fehlt, es gibt also nur noch eine Kopie der Daten. Der Verbund arbeitet mit der verbliebenen Festplatte weiter. Setzen Sie eine mindestens gleich große Festplatte ein und stellen Sie den Verbund wieder her.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>Die RAID-Einträge auf den beiden Festplatten gehören nicht zusammen. Stellen Sie ein RAID 1 von der Festplatte wieder her, deren Daten Sie behalten möchten, bereinigen Sie eine Festplatte oder erstellen Sie einen neuen Verbund.</translation>
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
        <translation>Die Wiederherstellung ist abgeschlossen. Beide Festplatten enthalten dieselben Daten.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>Eine Festplatte wurde eingesetzt oder entfernt. Das Gehäuse wird jetzt neu eingelesen.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>Das Gehäuse konnte nicht geöffnet werden.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Gerät</translation>
    </message>
    <message id="controllers">
        <source></source>
        <translation>Gehäuse</translation>
    </message>
    <message id="system_information">
        <source></source>
        <translation>System­information</translation>
    </message>
    <message id="devices">
        <source></source>
        <translation>Geräte</translation>
    </message>
    <message id="minimise">
        <source></source>
        <translation>Minimieren</translation>
    </message>
    <message id="close">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="clear">
        <source></source>
        <translation>Bereinigen</translation>
    </message>
    <message id="clear_disk_1">
        <source></source>
        <translation>Festplatte 1 bereinigen</translation>
    </message>
    <message id="clear_disk_2">
        <source></source>
        <translation>Festplatte 2 bereinigen</translation>
    </message>
    <message id="restart_enclosure">
        <source></source>
        <translation>Gehäuse neu starten</translation>
    </message>
    <message id="working">
        <source></source>
        <translation>Beschäftigt</translation>
    </message>
    <message id="empty_bay">
        <source></source>
        <translation>leerer Schacht</translation>
    </message>
    <message id="raid_0_meaning">
        <source></source>
        <translation>Schnell, Größen addiert; kein Ausfallschutz.</translation>
    </message>
    <message id="raid_1_meaning">
        <source></source>
        <translation>Zwei gleiche Kopien; eine Platte darf ausfallen.</translation>
    </message>
    <message id="span_meaning">
        <source></source>
        <translation>Eine Platte nach der anderen, Größen addiert.</translation>
    </message>
    <message id="not_config_meaning">
        <source></source>
        <translation>Zwei voneinander unabhängige Festplatten.</translation>
    </message>
    <message id="no_enclosure">
        <source></source>
        <translation>Kein Gehäuse angeschlossen</translation>
    </message>
    <message id="no_enclosure_advice">
        <source></source>
        <translation>Verbinden Sie das Gehäuse über USB oder FireWire und schalten Sie es ein. Es erscheint dann von selbst.</translation>
    </message>
    <message id="scanning">
        <source></source>
        <translation>Suche nach Gehäusen …</translation>
    </message>
    <message id="scanning_advice">
        <source></source>
        <translation>Beide Festplatten und der Verbund werden neu eingelesen. Das dauert einige Sekunden.</translation>
    </message>
    <message id="rebuild_hint">
        <source></source>
        <translation>Der Pfeil zeigt, wohin die Daten fließen. Die Festplatte an seiner Spitze wird überschrieben. Vor dem Schreiben werden Sie noch einmal gefragt.</translation>
    </message>
    <message id="plan_create">
        <source></source>
        <translation>Legt einen neuen Verbund an: %1.</translation>
    </message>
    <message id="plan_delete">
        <source></source>
        <translation>Löscht den Verbund.</translation>
    </message>
    <message id="plan_wipe_disk_1">
        <source></source>
        <translation>Leert Festplatte 1.</translation>
    </message>
    <message id="plan_wipe_disk_2">
        <source></source>
        <translation>Leert Festplatte 2.</translation>
    </message>
    <message id="plan_copy_disk_1">
        <source></source>
        <translation>Kopiert Festplatte 1 auf Festplatte 2.</translation>
    </message>
    <message id="plan_copy_disk_2">
        <source></source>
        <translation>Kopiert Festplatte 2 auf Festplatte 1.</translation>
    </message>
    <message id="plan_untouched">
        <source></source>
        <translation>nichts wird geschrieben</translation>
    </message>
    <message id="plan_all_lost">
        <source></source>
        <translation>verliert alle Daten</translation>
    </message>
    <message id="plan_keeps_data">
        <source></source>
        <translation>behält die Daten, verlässt den Verbund</translation>
    </message>
    <message id="plan_read">
        <source></source>
        <translation>wird gelesen, behält die Daten</translation>
    </message>
    <message id="plan_overwritten">
        <source></source>
        <translation>wird überschrieben, alle Daten verloren</translation>
    </message>
    <message id="plan_overwrites">
        <source></source>
        <translation>überschreibt</translation>
    </message>
    <message id="plan_too_small">
        <source></source>
        <translation>Um %1 Sektoren zu klein.</translation>
    </message>
    <message id="plan_record_inside_mirror">
        <source></source>
        <translation>Die Kopie reicht bis an den RAID-Datensatz.</translation>
    </message>
    <message id="plan_larger_than_used">
        <source></source>
        <translation>Nur ein Teil der Platte wird genutzt: Der RAID-Datensatz liegt vor dem Ende.</translation>
    </message>
    <message id="plan_foreign_sectors">
        <source></source>
        <translation>Ihre Sektoren haben nicht 512 Byte.</translation>
    </message>
    <message id="copy_failed">
        <source></source>
        <translation>Die Sicherheitskopie der RAID-Datensätze konnte nicht geschrieben werden: %1. Ohne sie fortfahren?</translation>
    </message>
    <message id="too_small_for_rebuild_1">
        <source></source>
        <translation>Festplatte 1 ist um %1 Sektoren zu klein.</translation>
    </message>
    <message id="too_small_for_rebuild_2">
        <source></source>
        <translation>Festplatte 2 ist um %1 Sektoren zu klein.</translation>
    </message>
    <message id="restart_named">
        <source></source>
        <translation>%1 neu starten</translation>
    </message>
    <message id="plan_copy_unfinished">
        <source></source>
        <translation>Die Kopie auf diese Platte ist nicht abgeschlossen.</translation>
    </message>
</context>
</TS>
