<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>Crea RAID</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>Elimina RAID</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>Configurazione RAID</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>Configurazione</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>Ricostruisci</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>Aggiorna</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>Stato del RAID</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>Avanzamento della ricostruzione</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>Disco 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>Disco 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>N. serie</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>Modalità</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>Capacità fisica</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>Non configurato</translation>
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
        <translation>Concatenato</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (incompleto)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (degradato)</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>disco nuovo</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>disco vecchio</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation> (origine)</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation> (destinazione)</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation> (in ricostruzione)</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>Manca un disco dell’array RAID 1: resta una sola copia dei dati. L’array continua a funzionare con l’altro disco. Aggiungere un disco almeno altrettanto grande e avviare la ricostruzione.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>I record RAID dei due dischi non corrispondono tra loro. Ricostruire un RAID 1 dal disco di cui si vogliono conservare i dati, cancellare un disco o creare un nuovo array.</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>Attenzione</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>Annulla</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>Avviso</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>Errore</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>Per la ricostruzione servono due dischi, di cui almeno uno appartenente a un array RAID 1.</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>Tutti i dati sui dischi andranno persi e non potranno essere recuperati. Continuare?</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>Impossibile creare l’array. Controllare entrambi i dischi e riprovare.</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>Impossibile eliminare l’array. Controllare entrambi i dischi e riprovare.</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>Impossibile cancellare il record RAID del disco. Controllare il disco e riprovare.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>Copiare il disco 1 sul disco 2? Tutto il contenuto del disco 2 verrà sovrascritto e non potrà essere recuperato.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>Copiare il disco 2 sul disco 1? Tutto il contenuto del disco 1 verrà sovrascritto e non potrà essere recuperato.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>Impossibile avviare la ricostruzione. Controllare entrambi i dischi e riprovare.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>La ricostruzione è completata. Ora i due dischi contengono gli stessi dati.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>Un disco è stato aggiunto o rimosso. È in corso una nuova lettura del box.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>Impossibile accedere al box.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Dispositivo</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>Box</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>Informazioni di sistema</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>Dispositivi</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>Riduci a icona</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>Chiudi</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>Cancella</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>Cancella disco 1</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>Cancella disco 2</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>Riavvia il box</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>Operazione in corso</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>vano vuoto</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>Veloce, capacità sommate, senza protezione.</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>Due copie uguali: un disco può guastarsi.</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>Un disco dopo l’altro, capacità sommate.</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>Due dischi indipendenti.</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>Nessun box collegato</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>Ricerca dei box in corso…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>È in corso la lettura dei box e dei loro dischi. Richiede alcuni secondi.</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>La freccia indica la direzione della copia. Il disco verso cui punta verrà sovrascritto. Prima di scrivere qualsiasi dato verrà chiesta conferma.</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>Verrà creato un nuovo array: %1.</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>L’array verrà eliminato.</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>Il disco 1 verrà cancellato.</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>Il disco 2 verrà cancellato.</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>Il disco 1 verrà copiato sul disco 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>Il disco 2 verrà copiato sul disco 1.</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>nessuna scrittura</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>perde tutti i dati</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>conserva i dati, esce dall’array</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>viene letto, conserva i dati</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>viene sovrascritto, perde tutti i dati</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>sovrascrive</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>Troppo piccolo (settori mancanti: %1).</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>La copia raggiunge la posizione del suo record RAID.</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>Viene usata solo una parte di questo disco: il suo record RAID non si trova alla fine.</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>I suoi settori non sono da 512 byte.</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>Impossibile salvare la copia di sicurezza dei record RAID: %1. Continuare senza?</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>Il disco 1 è troppo piccolo (settori mancanti: %1).</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>Il disco 2 è troppo piccolo (settori mancanti: %1).</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>Riavvia %1</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>La copia su questo disco non è completata.</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>Nessun box</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>Lettura in corso</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>Nessun disco</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>In buono stato</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>Degradato</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>Copie diverse</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>Incompleto</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>Ricostruzione in corso</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>I due dischi contengono gli stessi dati.</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>I due dischi rispondono. Non c’è una seconda copia.</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>Copia del disco %1 sul disco %2 in corso.</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>Collegare il box tramite USB o FireWire.</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>Accenderlo e attendere alcuni secondi.</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>Apparirà qui; altrimenti premere «%1».</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>Ancora niente? Controllare l’alimentazione del box, poi provare un altro cavo o un’altra porta.</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>Non accessibile</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>Accesso al box negato</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1: non si dispone dei permessi necessari. Accedere direttamente a questo computer o chiedere all’amministratore di concederli, poi premere «%2».</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>Il box non risponde</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1: nessuna risposta come box RAID, oppure è in uso da parte di un altro programma. Espellere il volume, spegnere e riaccendere il box, poi premere «%2».</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>Al momento nessun box è utilizzabile.</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>Entrambi i vani sono vuoti. Inserire un disco, poi premere «%1».</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>Il vano %1 è vuoto. Per creare un array, inserirvi un secondo disco e premere «%2».</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>Due dischi indipendenti. Per unirli, scegliere una modalità qui sotto e premere «%1»; tutto il contenuto di entrambi i dischi andrà perso.</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>L’uno o l’altro disco può guastarsi senza perdita di dati. Non è richiesto alcun intervento.</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>I dati sono distribuiti su entrambi i dischi. Se uno si guasta, tutto va perso: conservare una copia altrove.</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>Il disco 2 prosegue dove finisce il disco 1. Se uno si guasta, la sua parte dei dati va persa: conservare una copia altrove.</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>Manca il disco %1, quindi resta una sola copia, sul disco %2. Inserire un disco di almeno %3 nel vano %1; sarà poi possibile avviare la ricostruzione.</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>Solo il disco %1 contiene una copia di questo RAID 1. Per averne di nuovo due, copiarla sul disco %2 con «%3»; tutto il contenuto del disco %2 andrà perso.</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>Solo il disco %1 contiene una copia di questo RAID 1 e il disco %2 è troppo piccolo per una seconda. Inserire un disco di almeno %3 nel vano %2.</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>Ogni disco contiene una copia dello stesso RAID 1, ma le copie sono diverse; il record del disco %1 è il più recente. Scegliere la copia da conservare.</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>Ogni disco contiene una copia di un RAID 1, ma le copie non corrispondono tra loro. Scegliere quella da conservare.</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>Manca metà di questo array. Per accedere ai dati, reinserire l’altro disco e premere «%2». Cancellare il disco %1 solo se i dati non servono più.</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>I record dei due dischi non corrispondono. Per accedere ai dati di un array, inserire entrambi i suoi dischi e premere «%1». Cancellare un disco solo se i suoi dati non servono più.</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>Nel frattempo il volume resta utilizzabile. Fino al termine della copia solo il disco %1 contiene tutti i dati: non spegnere né scollegare il box.</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>Nessun box è collegato.</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>È in corso la lettura dei box.</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>Servono due dischi: il vano %1 è vuoto.</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>Servono due dischi: entrambi i vani sono vuoti.</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>È in corso una ricostruzione.</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>Scegliere prima la modalità RAID 0, RAID 1 o Concatenato.</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>Non c’è alcun array da eliminare.</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>Si può eliminare solo un array completo. Cancellando un disco se ne perde tutto il contenuto.</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>Il disco %1 non contiene alcuna copia di un RAID 1.</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>I due dischi contengono già gli stessi dati.</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>I dischi formano un array senza una seconda copia.</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>Il vano %1 è vuoto: non c’è un disco su cui copiare.</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>record %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>invariato</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>sovrascritto</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>in uso</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>origine</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>destinazione</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>ancora circa %1 h %2 min</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>ancora circa %1 min</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>ancora meno di un minuto</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>non avanza</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>Modifica dell’array in corso…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>È in corso la scrittura dei record sui dischi. Non spegnere né scollegare il box.</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>Un disco si è guastato</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>Che cosa fare se un disco si guasta</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>Salvare ciò che resta</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>L’altro disco di un RAID 1 contiene tutti i dati e l’array continua a funzionare con esso. Copiare subito in un altro posto ciò che non si può perdere. Non creare, eliminare o cancellare nulla.</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>Trovare il disco guasto</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>Se manca un disco, la pagina «%1» mostra quale vano è vuoto. Il numero di serie dell’altro disco è indicato in «%2»: confrontarlo con quello sull’etichetta prima di estrarre un disco.</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>Inserire un disco nuovo</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>Deve essere grande almeno quanto quello vecchio. Tutto il suo contenuto verrà sovrascritto: usare quindi un disco che non contenga nulla di necessario.</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>Ricostruire</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>Nella scheda «%1», premere il pulsante la cui freccia va dal disco rimasto a quello nuovo. Tenere acceso il box finché il programma non segnala che la ricostruzione è completata.</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>Le modalità RAID 0 e Concatenato non conservano una seconda copia. Provare il disco con un altro cavo o nell’altro vano; se è guasto, i dati si recuperano solo da un backup.</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>Mostra finestra</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>Il disco %1 contiene una copia completa di un RAID 1; il disco %2, metà di un altro array. Una ricostruzione sul disco %2 sovrascriverebbe questa metà.</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>I record dei due dischi indicano un tipo di array che questo programma non conosce. Eliminare l’array solo se i suoi dati non servono più.</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>Riavvio del box in corso…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>Scomparirà per alcuni secondi. Se non riappare, premere «%1».</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>È in corso il riavvio del box. Se non riappare, premere «%1».</translation>
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
        <translation>Il volume del box è in uso, quindi non è stato modificato nulla.</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>Impossibile stabilire se il volume del box è in uso, quindi non è stato modificato nulla.</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>Smontare i file system.</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>Disattivare l’area di swap (swapoff).</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>Arrestare ciò che occupa il volume, ad esempio crittografia, LVM o RAID software.</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>Arrestare ciò che tiene aperto il file system, ad esempio un container, oppure riavviare il computer.</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>Espellere il volume, poi scollegare il box e ricollegarlo.</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>Poi riprovare.</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 è montato in %2</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 è usato come area di swap</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 è occupato da %2</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… e altri %1</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>Non eseguito: «%1»</translation>
    </message>
</context>
</TS>
