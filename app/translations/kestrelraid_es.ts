<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name></name>
    <message id="create_raid">
        <source></source>
        <translation>Crear RAID</translation>
    </message>
    <message id="delete_raid">
        <source></source>
        <translation>Eliminar RAID</translation>
    </message>
    <message id="raid_configuration">
        <source></source>
        <translation>Configuración RAID</translation>
    </message>
    <message id="configuration_tab">
        <source></source>
        <translation>Configuración</translation>
    </message>
    <message id="rebuild">
        <source></source>
        <translation>Reconstruir</translation>
    </message>
    <message id="refresh_button">
        <source></source>
        <translation>Actualizar</translation>
    </message>
    <message id="raid_status">
        <source></source>
        <translation>Estado del RAID</translation>
    </message>
    <message id="rebuild_progress">
        <source></source>
        <translation>Progreso de la reconstrucción</translation>
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
        <translation>N.º serie</translation>
    </message>
    <message id="mode">
        <source></source>
        <translation>Modo</translation>
    </message>
    <message id="phy_size">
        <source></source>
        <translation>Capacidad física</translation>
    </message>
    <message id="not_config">
        <source></source>
        <translation>Sin configurar</translation>
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
        <translation>Concatenado</translation>
    </message>
    <message id="broken">
        <source></source>
        <translation> (incompleto)</translation>
    </message>
    <message id="degrade">
        <source></source>
        <translation> (degradado)</translation>
    </message>
    <message id="new">
        <source></source>
        <translation>disco nuevo</translation>
    </message>
    <message id="old">
        <source></source>
        <translation>disco antiguo</translation>
    </message>
    <message id="rebuild_source">
        <source></source>
        <translation> (origen)</translation>
    </message>
    <message id="rebuild_target">
        <source></source>
        <translation> (destino)</translation>
    </message>
    <message id="rebuilding">
        <source></source>
        <translation> (en reconstrucción)</translation>
    </message>
    <message id="raid1_degrade_mode">
        <source></source>
        <translation>Falta un disco del conjunto RAID 1: solo hay una copia de los datos. El conjunto sigue funcionando con el otro disco. Añada un disco al menos igual de grande e inicie la reconstrucción.</translation>
    </message>
    <message id="raid_info_conflict">
        <source></source>
        <translation>Los registros RAID de los dos discos no se corresponden entre sí. Reconstruya un RAID 1 a partir del disco cuyos datos desee conservar, borre un disco o cree un conjunto nuevo.</translation>
    </message>
    <message id="attention">
        <source></source>
        <translation>Atención</translation>
    </message>
    <message id="ok">
        <source></source>
        <translation>Aceptar</translation>
    </message>
    <message id="cancel">
        <source></source>
        <translation>Cancelar</translation>
    </message>
    <message id="warning">
        <source></source>
        <translation>Advertencia</translation>
    </message>
    <message id="error">
        <source></source>
        <translation>Error</translation>
    </message>
    <message id="two_raid1_disks_for_rebuild">
        <source></source>
        <translation>Para la reconstrucción se necesitan dos discos y al menos uno debe pertenecer a un conjunto RAID 1.</translation>
    </message>
    <message id="all_data_lost">
        <source></source>
        <translation>Se perderán todos los datos de los discos y no será posible recuperarlos. ¿Desea continuar?</translation>
    </message>
    <message id="raid_create_error">
        <source></source>
        <translation>No se ha podido crear el conjunto RAID. Compruebe los dos discos e inténtelo de nuevo.</translation>
    </message>
    <message id="raid_delete_error">
        <source></source>
        <translation>No se ha podido eliminar el conjunto RAID. Compruebe los dos discos e inténtelo de nuevo.</translation>
    </message>
    <message id="raid_info_delete_error">
        <source></source>
        <translation>No se ha podido borrar el registro RAID del disco. Compruebe el disco e inténtelo de nuevo.</translation>
    </message>
    <message id="disk1_to_disk2">
        <source></source>
        <translation>¿Desea copiar el disco 1 en el disco 2? Se sobrescribirá todo el contenido del disco 2 y no será posible recuperarlo.</translation>
    </message>
    <message id="disk2_to_disk1">
        <source></source>
        <translation>¿Desea copiar el disco 2 en el disco 1? Se sobrescribirá todo el contenido del disco 1 y no será posible recuperarlo.</translation>
    </message>
    <message id="rebuild_error">
        <source></source>
        <translation>No se ha podido iniciar la reconstrucción. Compruebe los dos discos e inténtelo de nuevo.</translation>
    </message>
    <message id="rebuild_finished">
        <source></source>
        <translation>La reconstrucción ha terminado. Ahora los dos discos contienen los mismos datos.</translation>
    </message>
    <message id="hot_swap">
        <source></source>
        <translation>Se ha añadido o retirado un disco. La caja se está leyendo de nuevo.</translation>
    </message>
    <message id="error_open_device">
        <source></source>
        <translation>No se ha podido acceder a la caja.</translation>
    </message>
    <message id="device">
        <source></source>
        <translation>Dispositivo</translation>
    </message>
    <message id="ui_controllers">
        <source></source>
        <translation>Cajas</translation>
    </message>
    <message id="ui_system_information">
        <source></source>
        <translation>Información del sistema</translation>
    </message>
    <message id="ui_devices">
        <source></source>
        <translation>Dispositivos</translation>
    </message>
    <message id="ui_minimise">
        <source></source>
        <translation>Minimizar</translation>
    </message>
    <message id="ui_close">
        <source></source>
        <translation>Cerrar</translation>
    </message>
    <message id="ui_clear">
        <source></source>
        <translation>Borrar</translation>
    </message>
    <message id="ui_clear_disk_1">
        <source></source>
        <translation>Borrar el disco 1</translation>
    </message>
    <message id="ui_clear_disk_2">
        <source></source>
        <translation>Borrar el disco 2</translation>
    </message>
    <message id="ui_restart_enclosure">
        <source></source>
        <translation>Reiniciar la caja</translation>
    </message>
    <message id="ui_working">
        <source></source>
        <translation>Operación en curso</translation>
    </message>
    <message id="ui_empty_bay">
        <source></source>
        <translation>bahía vacía</translation>
    </message>
    <message id="ui_raid_0_meaning">
        <source></source>
        <translation>Rápido, capacidades sumadas, sin protección.</translation>
    </message>
    <message id="ui_raid_1_meaning">
        <source></source>
        <translation>Dos copias iguales: puede fallar un disco.</translation>
    </message>
    <message id="ui_span_meaning">
        <source></source>
        <translation>Un disco tras otro, capacidades sumadas.</translation>
    </message>
    <message id="ui_not_config_meaning">
        <source></source>
        <translation>Dos discos independientes.</translation>
    </message>
    <message id="ui_no_enclosure">
        <source></source>
        <translation>No hay ninguna caja conectada</translation>
    </message>
    <message id="ui_scanning">
        <source></source>
        <translation>Buscando cajas…</translation>
    </message>
    <message id="ui_scanning_advice">
        <source></source>
        <translation>Se están leyendo las cajas y sus discos. Tardará unos segundos.</translation>
    </message>
    <message id="ui_rebuild_hint">
        <source></source>
        <translation>La flecha indica el sentido de la copia. El disco al que apunta se sobrescribirá. Se le pedirá confirmación antes de escribir nada.</translation>
    </message>
    <message id="ui_plan_create">
        <source></source>
        <translation>Se creará un conjunto nuevo: %1.</translation>
    </message>
    <message id="ui_plan_delete">
        <source></source>
        <translation>Se eliminará el conjunto RAID.</translation>
    </message>
    <message id="ui_plan_wipe_disk_1">
        <source></source>
        <translation>Se borrará el disco 1.</translation>
    </message>
    <message id="ui_plan_wipe_disk_2">
        <source></source>
        <translation>Se borrará el disco 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_1">
        <source></source>
        <translation>Se copiará el disco 1 en el disco 2.</translation>
    </message>
    <message id="ui_plan_copy_disk_2">
        <source></source>
        <translation>Se copiará el disco 2 en el disco 1.</translation>
    </message>
    <message id="ui_plan_untouched">
        <source></source>
        <translation>no se escribe nada</translation>
    </message>
    <message id="ui_plan_all_lost">
        <source></source>
        <translation>pierde todos los datos</translation>
    </message>
    <message id="ui_plan_keeps_data">
        <source></source>
        <translation>conserva los datos, sale del conjunto</translation>
    </message>
    <message id="ui_plan_read">
        <source></source>
        <translation>se lee, conserva los datos</translation>
    </message>
    <message id="ui_plan_overwritten">
        <source></source>
        <translation>se sobrescribe, pierde todos los datos</translation>
    </message>
    <message id="ui_plan_overwrites">
        <source></source>
        <translation>sobrescribe</translation>
    </message>
    <message id="ui_plan_too_small">
        <source></source>
        <translation>Demasiado pequeño (sectores que faltan: %1).</translation>
    </message>
    <message id="ui_plan_record_inside_mirror">
        <source></source>
        <translation>La copia alcanza la zona de su registro RAID.</translation>
    </message>
    <message id="ui_plan_larger_than_used">
        <source></source>
        <translation>Solo se usa una parte de este disco: su registro RAID no está al final.</translation>
    </message>
    <message id="ui_plan_foreign_sectors">
        <source></source>
        <translation>Sus sectores no son de 512 bytes.</translation>
    </message>
    <message id="ui_copy_failed">
        <source></source>
        <translation>No se ha podido guardar la copia de seguridad de los registros RAID: %1. ¿Desea continuar sin ella?</translation>
    </message>
    <message id="ui_too_small_for_rebuild_1">
        <source></source>
        <translation>El disco 1 es demasiado pequeño (sectores que faltan: %1).</translation>
    </message>
    <message id="ui_too_small_for_rebuild_2">
        <source></source>
        <translation>El disco 2 es demasiado pequeño (sectores que faltan: %1).</translation>
    </message>
    <message id="ui_restart_named">
        <source></source>
        <translation>Reiniciar %1</translation>
    </message>
    <message id="ui_plan_copy_unfinished">
        <source></source>
        <translation>La copia en este disco no ha terminado.</translation>
    </message>
    <message id="ui_verdict_none">
        <source></source>
        <translation>Sin caja</translation>
    </message>
    <message id="ui_verdict_scanning">
        <source></source>
        <translation>Lectura en curso</translation>
    </message>
    <message id="ui_verdict_no_disks">
        <source></source>
        <translation>Sin discos</translation>
    </message>
    <message id="ui_verdict_healthy">
        <source></source>
        <translation>En buen estado</translation>
    </message>
    <message id="ui_verdict_degraded">
        <source></source>
        <translation>Degradado</translation>
    </message>
    <message id="ui_verdict_differ">
        <source></source>
        <translation>Copias distintas</translation>
    </message>
    <message id="ui_verdict_broken">
        <source></source>
        <translation>Incompleto</translation>
    </message>
    <message id="ui_verdict_rebuilding">
        <source></source>
        <translation>En reconstrucción</translation>
    </message>
    <message id="ui_state_mirror">
        <source></source>
        <translation>Los dos discos contienen los mismos datos.</translation>
    </message>
    <message id="ui_state_no_copy">
        <source></source>
        <translation>Los dos discos responden. No hay una segunda copia.</translation>
    </message>
    <message id="ui_state_copying">
        <source></source>
        <translation>Copiando el disco %1 en el disco %2.</translation>
    </message>
    <message id="ui_step_connect">
        <source></source>
        <translation>Conecte la caja por USB o FireWire.</translation>
    </message>
    <message id="ui_step_switch_on">
        <source></source>
        <translation>Enciéndala y espere unos segundos.</translation>
    </message>
    <message id="ui_step_wait">
        <source></source>
        <translation>Aparecerá aquí; si no, pulse «%1».</translation>
    </message>
    <message id="ui_advice_none">
        <source></source>
        <translation>¿Sigue sin aparecer? Compruebe la alimentación de la caja y pruebe con otro cable u otro puerto.</translation>
    </message>
    <message id="ui_verdict_closed">
        <source></source>
        <translation>Sin acceso</translation>
    </message>
    <message id="ui_closed_heading">
        <source></source>
        <translation>Sin acceso a la caja</translation>
    </message>
    <message id="ui_closed_text">
        <source></source>
        <translation>%1: no tiene permiso de acceso. Inicie sesión directamente en este equipo o pida al administrador que se lo conceda. Después pulse «%2».</translation>
    </message>
    <message id="ui_silent_heading">
        <source></source>
        <translation>La caja no responde</translation>
    </message>
    <message id="ui_silent_text">
        <source></source>
        <translation>%1: sin respuesta como caja RAID, o en uso por otro programa. Expulse el volumen, apague la caja, vuelva a encenderla y pulse «%2».</translation>
    </message>
    <message id="ui_reason_closed">
        <source></source>
        <translation>Por ahora no se puede usar ninguna caja.</translation>
    </message>
    <message id="ui_advice_no_disks">
        <source></source>
        <translation>Las dos bahías están vacías. Inserte un disco y después pulse «%1».</translation>
    </message>
    <message id="ui_advice_one_disk">
        <source></source>
        <translation>La bahía %1 está vacía. Para crear un conjunto RAID, inserte en ella un segundo disco y pulse «%2».</translation>
    </message>
    <message id="ui_advice_pair">
        <source></source>
        <translation>Dos discos independientes. Para unirlos, elija abajo un modo y pulse «%1»; se perderá todo el contenido de ambos discos.</translation>
    </message>
    <message id="ui_advice_mirror">
        <source></source>
        <translation>Puede fallar cualquiera de los dos discos sin que se pierdan datos. No tiene que hacer nada.</translation>
    </message>
    <message id="ui_advice_stripe">
        <source></source>
        <translation>Los datos están repartidos entre los dos discos. Si uno falla, se pierde todo: guarde una copia en otro lugar.</translation>
    </message>
    <message id="ui_advice_span">
        <source></source>
        <translation>El disco 2 continúa donde termina el disco 1. Si uno falla, se pierde su parte de los datos: guarde una copia en otro lugar.</translation>
    </message>
    <message id="ui_advice_missing">
        <source></source>
        <translation>Falta el disco %1, así que solo queda una copia, en el disco %2. Inserte un disco de al menos %3 en la bahía %1; después podrá iniciar la reconstrucción.</translation>
    </message>
    <message id="ui_advice_fresh">
        <source></source>
        <translation>Solo el disco %1 contiene una copia de este RAID 1. Para volver a tener dos, cópiela en el disco %2 con «%3»; se perderá todo el contenido del disco %2.</translation>
    </message>
    <message id="ui_advice_small">
        <source></source>
        <translation>Solo el disco %1 contiene una copia de este RAID 1, y el disco %2 es demasiado pequeño para otra. Inserte un disco de al menos %3 en la bahía %2.</translation>
    </message>
    <message id="ui_advice_differ">
        <source></source>
        <translation>Cada disco contiene una copia del mismo RAID 1, pero las copias difieren; el registro del disco %1 es el más reciente. Elija qué copia desea conservar.</translation>
    </message>
    <message id="ui_advice_differ_undated">
        <source></source>
        <translation>Cada disco contiene una copia de un RAID 1, pero las copias no se corresponden entre sí. Elija cuál desea conservar.</translation>
    </message>
    <message id="ui_advice_half">
        <source></source>
        <translation>Falta la mitad de este conjunto. Para acceder a sus datos, vuelva a insertar el otro disco y pulse «%2». Borre el disco %1 solo si ya no necesita los datos.</translation>
    </message>
    <message id="ui_advice_halves">
        <source></source>
        <translation>Los registros de los dos discos no se corresponden entre sí. Para acceder a un conjunto, inserte sus dos discos y pulse «%1». Borre un disco solo si ya no necesita sus datos.</translation>
    </message>
    <message id="ui_advice_rebuilding">
        <source></source>
        <translation>Mientras tanto, puede usar el volumen. Hasta que termine la copia, solo el disco %1 contiene todos los datos: no apague ni desconecte la caja.</translation>
    </message>
    <message id="ui_reason_no_enclosure">
        <source></source>
        <translation>No hay ninguna caja conectada.</translation>
    </message>
    <message id="ui_reason_scanning">
        <source></source>
        <translation>Se están leyendo las cajas.</translation>
    </message>
    <message id="ui_reason_bay_empty">
        <source></source>
        <translation>Se necesitan dos discos: la bahía %1 está vacía.</translation>
    </message>
    <message id="ui_reason_no_disks">
        <source></source>
        <translation>Se necesitan dos discos: las dos bahías están vacías.</translation>
    </message>
    <message id="ui_reason_rebuild_running">
        <source></source>
        <translation>Hay una reconstrucción en curso.</translation>
    </message>
    <message id="ui_reason_choose_kind">
        <source></source>
        <translation>Elija antes el modo RAID 0, RAID 1 o Concatenado.</translation>
    </message>
    <message id="ui_reason_no_array">
        <source></source>
        <translation>No hay ningún conjunto RAID que eliminar.</translation>
    </message>
    <message id="ui_reason_incomplete">
        <source></source>
        <translation>Solo se puede eliminar un conjunto completo. Al borrar un disco se pierde todo su contenido.</translation>
    </message>
    <message id="ui_reason_no_mirror">
        <source></source>
        <translation>El disco %1 no contiene ninguna copia de un RAID 1.</translation>
    </message>
    <message id="ui_reason_same_data">
        <source></source>
        <translation>Los dos discos ya contienen los mismos datos.</translation>
    </message>
    <message id="ui_reason_other_array">
        <source></source>
        <translation>Los discos forman un conjunto sin segunda copia.</translation>
    </message>
    <message id="ui_reason_no_target">
        <source></source>
        <translation>La bahía %1 está vacía: no hay ningún disco en el que copiar.</translation>
    </message>
    <message id="ui_record">
        <source></source>
        <translation>registro %1</translation>
    </message>
    <message id="ui_stays">
        <source></source>
        <translation>sin cambios</translation>
    </message>
    <message id="ui_overwritten">
        <source></source>
        <translation>sobrescrito</translation>
    </message>
    <message id="ui_in_use">
        <source></source>
        <translation>en uso</translation>
    </message>
    <message id="ui_source">
        <source></source>
        <translation>origen</translation>
    </message>
    <message id="ui_target">
        <source></source>
        <translation>destino</translation>
    </message>
    <message id="ui_left_hours">
        <source></source>
        <translation>tiempo restante: aprox. %1 h %2 min</translation>
    </message>
    <message id="ui_left_minutes">
        <source></source>
        <translation>tiempo restante: aprox. %1 min</translation>
    </message>
    <message id="ui_left_soon">
        <source></source>
        <translation>tiempo restante: menos de un minuto</translation>
    </message>
    <message id="ui_stalled">
        <source></source>
        <translation>no avanza</translation>
    </message>
    <message id="ui_changing">
        <source></source>
        <translation>Modificando el conjunto…</translation>
    </message>
    <message id="ui_changing_advice">
        <source></source>
        <translation>Se están escribiendo los registros de los discos. No apague ni desconecte la caja.</translation>
    </message>
    <message id="ui_guide">
        <source></source>
        <translation>Ha fallado un disco</translation>
    </message>
    <message id="ui_guide_link">
        <source></source>
        <translation>Qué hacer si falla un disco</translation>
    </message>
    <message id="ui_guide_keep">
        <source></source>
        <translation>Conservar lo que queda</translation>
    </message>
    <message id="ui_guide_keep_text">
        <source></source>
        <translation>El otro disco de un RAID 1 contiene todos sus datos, y el conjunto sigue funcionando con él. Copie ahora en otro lugar todo lo que no pueda permitirse perder. De momento, no cree, elimine ni borre nada.</translation>
    </message>
    <message id="ui_guide_find">
        <source></source>
        <translation>Encontrar el disco averiado</translation>
    </message>
    <message id="ui_guide_find_text">
        <source></source>
        <translation>Si falta un disco, la página «%1» muestra qué bahía está vacía. El número de serie del otro disco figura en «%2»: compárelo con el de la etiqueta antes de retirar un disco.</translation>
    </message>
    <message id="ui_guide_replace">
        <source></source>
        <translation>Insertar un disco nuevo</translation>
    </message>
    <message id="ui_guide_replace_text">
        <source></source>
        <translation>Su capacidad debe ser al menos igual a la del antiguo. Todo su contenido se sobrescribirá, así que use un disco que no contenga nada que necesite.</translation>
    </message>
    <message id="ui_guide_rebuild">
        <source></source>
        <translation>Reconstruir</translation>
    </message>
    <message id="ui_guide_rebuild_text">
        <source></source>
        <translation>En la pestaña «%1», pulse el botón cuya flecha va del disco que queda al nuevo. Mantenga la caja encendida hasta que el programa indique que la reconstrucción ha terminado.</translation>
    </message>
    <message id="ui_guide_no_copy">
        <source></source>
        <translation>Los modos RAID 0 y Concatenado no guardan una segunda copia. Pruebe el disco con otro cable o en la otra bahía; si está averiado, los datos solo podrán recuperarse de una copia de seguridad.</translation>
    </message>
    <message id="ui_open_window">
        <source></source>
        <translation>Mostrar la ventana</translation>
    </message>
    <message id="ui_advice_beside_half">
        <source></source>
        <translation>El disco %1 contiene una copia completa de un RAID 1; el disco %2, la mitad de otro conjunto. Una reconstrucción en el disco %2 sobrescribiría esa mitad.</translation>
    </message>
    <message id="ui_advice_unknown">
        <source></source>
        <translation>Los registros de los dos discos indican un tipo de conjunto que este programa no conoce. Elimine el conjunto solo si ya no necesita sus datos.</translation>
    </message>
    <message id="ui_restarting">
        <source></source>
        <translation>Reiniciando la caja…</translation>
    </message>
    <message id="ui_restarting_advice">
        <source></source>
        <translation>Desaparecerá durante unos segundos. Si no vuelve a aparecer, pulse «%1».</translation>
    </message>
    <message id="ui_reason_restarting">
        <source></source>
        <translation>La caja se está reiniciando. Si no vuelve a aparecer, pulse «%1».</translation>
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
        <translation>El volumen de la caja está en uso, así que no se ha cambiado nada.</translation>
    </message>
    <message id="ui_volume_unchecked">
        <source></source>
        <translation>No se ha podido averiguar si el volumen de la caja está en uso, así que no se ha cambiado nada.</translation>
    </message>
    <message id="ui_remedy_unmount">
        <source></source>
        <translation>Desmonte los sistemas de archivos.</translation>
    </message>
    <message id="ui_remedy_swapoff">
        <source></source>
        <translation>Desactive el área de intercambio (swapoff).</translation>
    </message>
    <message id="ui_remedy_release">
        <source></source>
        <translation>Detenga lo que ocupa el volumen, como cifrado, LVM o RAID por software.</translation>
    </message>
    <message id="ui_remedy_close">
        <source></source>
        <translation>Cierre lo que mantiene abierto el sistema de archivos, como un contenedor, o reinicie el equipo.</translation>
    </message>
    <message id="ui_remedy_reconnect">
        <source></source>
        <translation>Expulse el volumen, desconecte la caja y vuelva a conectarla.</translation>
    </message>
    <message id="ui_try_again">
        <source></source>
        <translation>Después, inténtelo de nuevo.</translation>
    </message>
    <message id="ui_use_mounted">
        <source></source>
        <translation>%1 está montado en %2</translation>
    </message>
    <message id="ui_use_swap">
        <source></source>
        <translation>%1 se usa como área de intercambio</translation>
    </message>
    <message id="ui_use_held">
        <source></source>
        <translation>%1 está ocupado por %2</translation>
    </message>
    <message id="ui_uses_more">
        <source></source>
        <translation>… y %1 más</translation>
    </message>
    <message id="ui_plan_refused">
        <source></source>
        <translation>No realizado: «%1»</translation>
    </message>
</context>
</TS>
