<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>Aparecerá en la lista sin nombre.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>Aparecerá en la lista como «%1».</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Publishers</source>
        <translation>Publicadores</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>Los publicadores de discos registrados y su estado</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Agregar…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Eliminar…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Propiedades…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>&amp;Configuración común de publicación…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Recopilar y guardar registros</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>&amp;Acerca de Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Iniciar Ulmar Disc &amp;Monitor</translation>
    </message>
</context>
<context>
    <name>PubSetup</name>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Log collection has finished.</source>
        <translation>Los registros se han recopilado y guardado.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>No se pudo ejecutar el comando «tar». Compruebe que la instalación se haya realizado correctamente.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>No se pudo ejecutar el comando «tar». Compruebe que la instalación se haya realizado correctamente. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Host</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Transmisión</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Espacio libre</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>No se pudo obtener el modo de publicación registrado en el dispositivo de salida, por lo que se sigue mostrando el último valor conocido.
El modo de publicación y la configuración de los apiladores que se muestran pueden diferir de los valores realmente registrados.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>¿Desea eliminar este elemento?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Hay trabajos en el dispositivo de salida, por lo que no se pudo eliminar.
Elimínelo cuando hayan finalizado todos los trabajos.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>No se pudo cambiar la configuración.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup recopila los registros de los publicadores CD/DVD/BD y los guarda en este equipo.
Consulte en la documentación qué información se recopila.
ARVEN Ulmar Disc Setup no envía ninguna información.
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>Archivo comprimido que se guardará (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Administrador no registrado</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Versión no admitida</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>No hay publicadores registrados. Para agregar uno, elija «Agregar» en el menú «Edición».</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>No hay publicadores registrados.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>Apilador 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinta</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Impresiones restantes</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Sin trabajos</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallidos</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Tiempo restante</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>cancelando</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>pausando</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pausa</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>deteniendo</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>terminado</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Cian claro</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Magenta claro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>casi vacío</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>retirado</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>no reconocido</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>no original</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>no lleno</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>demasiado lleno</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactivo</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>contiene un disco</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>grabando</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>verificando</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>no utilizado</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>transportando</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>ejecutando un complemento</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>midiendo</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>leyendo</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>imprimiendo</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>limpiando</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>secando</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>ocupado</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Modo de seguridad</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Modo de control de salida</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Modo de tasa de errores</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Modo de lectura</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Apilador de entrada</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>mantenimiento próximo</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>almohadilla de tinta casi llena</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>advertencia mecánica</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>sin conexión</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>almohadilla de tinta llena</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>requiere mantenimiento</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>error grave</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>cubierta de discos abierta</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>cubierta de tinta abierta</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>sin tinta</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>cubierta de la caja de mantenimiento abierta</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>caja de mantenimiento retirada</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>caja de mantenimiento llena</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>error mecánico</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>apilador 1 retirado</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>apilador 2 retirado</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>apilador 3 retirado</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>apilador 4 abierto</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>apagado</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>error grave de la impresora</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>la impresora requiere mantenimiento</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>error de la impresora</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>apilador 1 demasiado lleno</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>apilador 2 demasiado lleno</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>en funcionamiento</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>apilador 3 demasiado lleno</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>inicializando</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>recuperando</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>finalizando</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>inicialización suspendida</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>recuperación suspendida</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>error al coger un disco</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>en mantenimiento</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>error de gestión de discos</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>error del ventilador</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>Acerca de ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Icono del programa</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup para Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Registra publicadores de discos, muestra su estado y cambia su configuración.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Registrar un nuevo publicador CD/DVD/BD</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Especifique la dirección IP o el nombre de host del publicador CD/DVD en red que desea registrar.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Escriba un nombre para el publicador CD/DVD.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Este nombre ya está registrado.
Utilice otro nombre.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>No se encontró el dispositivo de salida en la red.
Es posible que el nombre de host o la dirección IP no sean correctos, o que el dispositivo de salida no esté conectado a la red.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>No se pudo cambiar la configuración.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Limpieza de cabezales</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Limpieza de cabezales</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Limpie el cabezal de impresión solo si aparecen zonas tenues o huecos en la impresión, ya que la limpieza consume tinta.
Si no hay tinta suficiente para limpiar el cabezal, sustituya primero el cartucho de tinta.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Limpieza de cabezales</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Limpieza de cabezales</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>La limpieza tarda unos minutos y termina cuando el indicador de encendido del panel de control de la impresora deja de parpadear. Para comprobar el resultado de la limpieza, haga clic en «Imprimir patrón de test».</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Imprimir patrón de test</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Test de inyectores</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Test de inyectores</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Patrón de test de inyectores</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Imprima un patrón para comprobar que los inyectores del cabezal de impresión no estén obstruidos.

Compruebe la conexión del cable y encienda el dispositivo. Asegúrese de colocar en el apilador 1 discos con un diámetro exterior de impresión de 116&#xa0;mm o más.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Test de inyectores</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Test de inyectores</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Patrón sin segmentos ausentes</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Patrón con segmentos ausentes</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Limpieza necesaria</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Compare el patrón impreso con las muestras de arriba. Si faltan segmentos en el patrón impreso, haga clic en «Limpiar». De lo contrario, haga clic en «Finalizar» para salir.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Nombre de host</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Configuración de apiladores</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Modo de publicación</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Modo estándar</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Modo de salida externa / bajo volumen</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>Modo por lotes</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>Apilador 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>Apilador 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Apilador de salida</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Apilador 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utilizar</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>No utilizar</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Recorrido de los discos</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Configuración de unidades</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Unidad que se utilizará</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Utilizar ambas</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Utilizar solo la unidad 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Utilizar solo la unidad 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Número de reintentos de escritura</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Configuración de la impresora</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>Imprimir una marca de &amp;error en los discos con errores</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Marca de error</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Mantenimiento de la impresora</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Test de inyectores</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Utilice esta función si aparecen huecos o zonas tenues en la impresión.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Limpieza de cabezales</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Utilice esta función si disminuye la calidad de impresión o si el test de inyectores indica que hay inyectores obstruidos.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Datos de mantenimiento</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Total de discos publicados:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[discos]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Número de discos impresos:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Espacio libre de la caja de mantenimiento:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Vida útil consumida de la unidad 1:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Vida útil consumida de la unidad 2:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Número de serie:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Información de versiones</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Cargador automático:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Impresora:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Unidad 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Unidad 2:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Servidor:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Test de inyectores</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Limpieza de cabezales</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>No imprimir</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Vida útil consumida de la unidad:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Unidad:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Propiedades - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Escriba un nombre para el dispositivo de salida.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>No se puede utilizar «\» en el nombre del dispositivo de salida.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Este nombre ya está registrado.
Utilice otro nombre.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>No se pudo cambiar la configuración porque no fue posible registrar el modo de publicación en el dispositivo de salida.
Compruebe la alimentación y la conexión del dispositivo de salida y, a continuación, cambie la configuración.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>No se pudo cambiar la configuración.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>El dispositivo de salida está procesando trabajos, por lo que no se pudo cambiar la configuración.
Cámbiela cuando hayan finalizado todos los trabajos.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Apilador de salida</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Configuración común de publicación</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Carpeta de trabajo</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Notificación</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Método de notificación</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Pitido al finalizar un trabajo o cuando el apilador de entrada esté vacío (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Notificación al finalizar un trabajo</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Notificar al finalizar cada trabajo</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Notificar al finalizar todos los trabajos</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Publicador CD/DVD/BD en red</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Autorización de compatibilidad</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Autorizar versiones antiguas de publicadores CD/DVD/BD en red pese a los riesgos de seguridad</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Si selecciona esta opción, puede utilizar los siguientes dispositivos.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Versiones del servidor anteriores a la 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>Se recomienda encarecidamente actualizar a la versión más reciente del software para corregir las vulnerabilidades.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Seleccionar carpeta de trabajo</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>No se pudo cambiar la carpeta de trabajo porque se está procesando un trabajo en este equipo.
Cambie la carpeta de trabajo cuando hayan finalizado todos los trabajos.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>La carpeta especificada no se puede establecer como carpeta de trabajo.
Especifique otra carpeta.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>No se pudo cambiar la configuración.</translation>
    </message>
</context>
</TS>
