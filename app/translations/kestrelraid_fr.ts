<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>Créer un RAID</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>Supprimer le RAID</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>Configuration RAID</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>Configuration</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>Reconstruire</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>Actualiser</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>État du RAID</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>Progression de la reconstruction</translation>
    </message>
    <message id="disk_1">
        <source></source>
        <translation>Disque 1</translation>
    </message>
    <message id="disk_2">
        <source></source>
        <translation>Disque 2</translation>
    </message>
    <message id="SN">
        <source></source>
        <translation>N° série</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>Mode</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>Capacité physique</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>Non configuré</translation>
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
        <translation>Concaténé</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (incomplet)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (dégradé)</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>nouveau disque</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>ancien disque</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation> (source)</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation> (cible)</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation> (en reconstruction)</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>Il manque un disque : l’ensemble RAID 1 fonctionne avec l’autre et il ne reste qu’une copie des données. Ajoutez un disque au moins aussi grand, puis lancez la reconstruction.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>Les enregistrements RAID des disques ne concordent pas. Reconstruisez un RAID 1 à partir du disque dont vous gardez les données, effacez un disque ou créez un nouvel ensemble.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>Avertissement</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>Erreur</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>La reconstruction nécessite deux disques, dont l’un au moins fait partie d’un ensemble RAID 1.</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>Toutes les données des disques seront perdues et ne pourront pas être récupérées. Continuer ?</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>L’ensemble RAID n’a pas pu être créé. Vérifiez les deux disques et réessayez.</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>L’ensemble RAID n’a pas pu être supprimé. Vérifiez les deux disques et réessayez.</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>L’enregistrement RAID du disque n’a pas pu être effacé. Vérifiez le disque et réessayez.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>Copier le disque 1 sur le disque 2 ? Tout le contenu du disque 2 sera écrasé et ne pourra pas être récupéré.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>Copier le disque 2 sur le disque 1 ? Tout le contenu du disque 1 sera écrasé et ne pourra pas être récupéré.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>La reconstruction n’a pas pu démarrer. Vérifiez les deux disques et réessayez.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>La reconstruction est terminée. Les deux disques contiennent désormais les mêmes données.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>Un disque a été ajouté ou retiré. Nouvelle lecture du boîtier en cours.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>Impossible d’accéder au boîtier.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Périphérique</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>Boîtiers</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>Informations système</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>Périphériques</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>Réduire</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>Fermer</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>Effacer</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>Effacer le disque 1</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>Effacer le disque 2</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>Redémarrer le boîtier</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>Opération en cours</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>baie vide</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>Rapide, capacités cumulées, sans protection.</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>Deux copies identiques, une panne tolérée.</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>Un disque après l’autre, capacités cumulées.</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>Deux disques indépendants.</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>Aucun boîtier connecté</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>Recherche de boîtiers…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>Lecture des boîtiers et de leurs disques. Cela prend quelques secondes.</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>La flèche indique le sens de la copie. Le disque vers lequel elle pointe sera écrasé. Une confirmation vous sera demandée avant toute écriture.</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>Création d’un nouvel ensemble : %1</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>Suppression de l’ensemble RAID</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>Effacement du disque 1</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>Effacement du disque 2</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>Copie du disque 1 sur le disque 2</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>Copie du disque 2 sur le disque 1</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>aucune écriture</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>perd toutes ses données</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>conserve ses données, quitte l’ensemble</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>est lu, conserve ses données</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>est écrasé, perd toutes ses données</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>écrase</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>Trop petit (secteurs manquants : %1).</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>La copie atteint l’emplacement de son enregistrement RAID.</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>Seule une partie de ce disque est utilisée : son enregistrement RAID ne se trouve pas à la fin.</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>Ses secteurs ne font pas 512 octets.</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>La copie de sécurité des enregistrements RAID n’a pas pu être écrite : %1. Continuer sans elle ?</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>Le disque 1 est trop petit (secteurs manquants : %1).</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>Le disque 2 est trop petit (secteurs manquants : %1).</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>Redémarrer %1</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>La copie sur ce disque n’est pas terminée.</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>Aucun boîtier</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>Lecture en cours</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>Aucun disque</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>En bon état</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>Dégradé</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>Copies différentes</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>Incomplet</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>Reconstruction en cours</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>Les deux disques contiennent les mêmes données.</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>Les deux disques répondent. Pas de seconde copie.</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>Copie du disque %1 sur le disque %2 en cours.</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>Connectez le boîtier en USB ou en FireWire.</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>Allumez-le et patientez quelques secondes.</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>Il apparaît ici, sinon cliquez sur « %1 ».</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>Toujours rien ? Vérifiez l’alimentation du boîtier, puis essayez un autre câble ou un autre port.</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>Inaccessible</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>Pas d’accès au boîtier</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1 : vous n’avez pas les droits d’accès. Ouvrez une session directement sur cet ordinateur ou demandez à l’administrateur de vous les accorder, puis cliquez sur « %2 ».</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>Le boîtier ne répond pas</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1 : pas de réponse en tant que boîtier RAID, ou utilisation par un autre programme. Éjectez le volume, éteignez et rallumez le boîtier, puis cliquez sur « %2 ».</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>Aucun boîtier n’est utilisable pour le moment.</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>Les deux baies sont vides. Insérez un disque, puis cliquez sur « %1 ».</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>La baie %1 est vide. Pour créer un ensemble RAID, insérez-y un second disque et cliquez sur « %2 ».</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>Deux disques indépendants. Pour les réunir, choisissez un mode ci-dessous et cliquez sur « %1 » ; tout le contenu des deux disques sera alors perdu.</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>L’un ou l’autre disque peut tomber en panne sans perte de données. Vous n’avez rien à faire.</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>Les données sont réparties sur les deux disques. Si l’un tombe en panne, tout est perdu : gardez une copie ailleurs.</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>Le disque 2 prend la suite du disque 1. Si l’un tombe en panne, les données qu’il contient sont perdues : gardez une copie ailleurs.</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>Le disque %1 est absent : il ne reste qu’une copie, sur le disque %2. Insérez un disque d’au moins %3 dans la baie %1 ; vous pourrez alors lancer la reconstruction.</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>Seul le disque %1 contient une copie de ce RAID 1. Pour en avoir de nouveau deux, copiez-la sur le disque %2 avec « %3 » ; tout le contenu du disque %2 sera alors perdu.</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>Seul le disque %1 contient une copie de ce RAID 1, et le disque %2 est trop petit pour en recevoir une. Insérez un disque d’au moins %3 dans la baie %2.</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>Chaque disque contient une copie du même RAID 1, mais ces copies diffèrent ; l’enregistrement du disque %1 est le plus récent. Choisissez la copie à conserver.</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>Chaque disque contient une copie d’un RAID 1, mais ces copies ne concordent pas. Choisissez celle à conserver.</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>Il manque la moitié de cet ensemble. Pour accéder à ses données, remettez l’autre disque en place et cliquez sur « %2 ». N’effacez le disque %1 que si les données ne servent plus.</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>Les deux enregistrements ne concordent pas. Pour accéder à un ensemble, insérez ses deux disques et cliquez sur « %1 ». N’effacez un disque que si ses données ne servent plus.</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>Le volume reste utilisable. Tant que la copie n’est pas terminée, seul le disque %1 contient toutes les données : n’éteignez pas le boîtier et ne le débranchez pas.</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>Aucun boîtier n’est connecté.</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>La lecture des boîtiers est en cours.</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>Deux disques sont nécessaires : la baie %1 est vide.</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>Deux disques sont nécessaires : les deux baies sont vides.</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>Une reconstruction est en cours.</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>Choisissez d’abord le mode RAID 0, RAID 1 ou Concaténé.</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>Il n’y a aucun ensemble RAID à supprimer.</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>Seul un ensemble complet peut être supprimé. Effacer un disque fait perdre tout son contenu.</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>Le disque %1 ne contient aucune copie d’un RAID 1.</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>Les deux disques contiennent déjà les mêmes données.</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>Les disques forment un ensemble sans seconde copie.</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>La baie %1 est vide : il n’y a aucun disque sur lequel copier.</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>enreg. %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>inchangé</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>écrasé</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>en service</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>source</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>cible</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>encore environ %1 h %2 min</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>encore environ %1 min</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>encore moins d’une minute</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>n’avance plus</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>Modification de l’ensemble…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>Écriture des enregistrements sur les disques. N’éteignez pas le boîtier et ne le débranchez pas.</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>Un disque est tombé en panne</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>Que faire si un disque tombe en panne ?</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>Préserver ce qui reste</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>L’autre disque d’un RAID 1 contient toutes vos données, et l’ensemble continue de fonctionner avec lui. Copiez dès maintenant en lieu sûr ce que vous ne pouvez pas perdre. Ne créez rien, ne supprimez rien, n’effacez rien.</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>Trouver le disque en panne</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>S’il manque un disque, la page « %1 » indique quelle baie est vide. Le numéro de série de l’autre disque figure à la page « %2 » : comparez-le à celui de l’étiquette avant de retirer un disque.</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>Installer un nouveau disque</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>Il doit être au moins aussi grand que l’ancien. Tout ce qu’il contient sera écrasé : choisissez un disque sur lequel il n’y a rien à garder.</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>Reconstruire</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>Sous l’onglet « %1 », cliquez sur le bouton dont la flèche va du disque restant vers le nouveau. Laissez le boîtier allumé jusqu’à ce que le programme annonce que la reconstruction est terminée.</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>Les modes RAID 0 et Concaténé ne gardent pas de seconde copie. Essayez le disque avec un autre câble ou dans l’autre baie ; s’il est bien en panne, seule une sauvegarde permettra de retrouver les données.</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>Le disque %1 contient une copie complète d’un RAID 1 ; le disque %2, la moitié d’un autre ensemble. Une reconstruction sur le disque %2 écraserait cette moitié.</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>Les enregistrements des deux disques désignent un type d’ensemble que ce programme ne connaît pas. Ne supprimez cet ensemble que si ses données ne servent plus.</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>Redémarrage du boîtier…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>Il disparaîtra quelques secondes. S’il ne réapparaît pas, cliquez sur « %1 ».</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>Le boîtier redémarre. S’il ne réapparaît pas, cliquez sur « %1 ».</translation>
    </message>
    <message id="ui_said">
        <source></source>
        <translation>%1. %2</translation>
    </message>
    <message id="ui_said_array">
        <source></source>
        <translation>%1 : %2. %3</translation>
    </message>
    <message id="ui_volume_in_use">
        <source></source>
        <translation>Le volume du boîtier est utilisé : rien n’a été modifié.</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>Impossible de savoir si le volume du boîtier est utilisé : rien n’a été modifié.</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>Démontez les systèmes de fichiers.</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>Désactivez l’espace d’échange (swapoff).</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>Arrêtez ce qui occupe le volume, par exemple un chiffrement, LVM ou un RAID logiciel.</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>Arrêtez ce qui garde le système de fichiers ouvert, par exemple un conteneur, ou redémarrez l’ordinateur.</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>Éjectez le volume, puis débranchez le boîtier et rebranchez-le.</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>Réessayez ensuite.</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 est monté sur %2</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 sert d’espace d’échange</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 est occupé par %2</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… et %1 autres</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>Opération non effectuée : %1</translation>
    </message>
</context>
</TS>
