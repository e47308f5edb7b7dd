<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>Der Eintrag in der Liste hat keinen Namen.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>In der Liste steht „%1“.</translation>
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
        <translation>Publisher</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>Die registrierten Disc-Publisher und ihr Status</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Entfernen…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>Ei&amp;genschaften…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>&amp;Gemeinsame Einstellungen für die Produktion…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Protokolle sammeln und speichern</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>&amp;Über Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Ulmar Disc &amp;Monitor starten</translation>
    </message>
</context>
<context>
    <name>PubSetup</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Hostname</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartend</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Übertragung</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Freier Speicher</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>Der im Ausgabegerät registrierte Produktionsmodus konnte nicht abgerufen werden, daher wird weiterhin der zuletzt bekannte Wert angezeigt.
Der angezeigte Produktionsmodus und die angezeigten Stacker-Einstellungen können von den tatsächlich registrierten Werten abweichen.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Möchten Sie den Eintrag entfernen?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Im Ausgabegerät befinden sich Aufträge, daher konnte es nicht entfernt werden.
Bitte entfernen Sie es, wenn alle Aufträge abgeschlossen sind.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Die Einstellung konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Kein Administrator registriert</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Version nicht unterstützt</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Log collection has finished.</source>
        <translation>Die Protokolle wurden gesammelt und gespeichert.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>Der Befehl „tar“ konnte nicht ausgeführt werden. Prüfen Sie, ob die Installation korrekt durchgeführt wurde.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>Der Befehl „tar“ konnte nicht ausgeführt werden. Prüfen Sie, ob die Installation korrekt durchgeführt wurde. (%d)</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup sammelt Protokolle zu den CD/DVD/BD-Publishern und speichert sie auf diesem Computer.
Welche Informationen gesammelt werden, erfahren Sie in der Dokumentation.
ARVEN Ulmar Disc Setup sendet keine Informationen.
Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>Zu speichernde Archivdatei (*.tgz)</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>Keine Publisher registriert. Wählen Sie „Hinzufügen“ im Menü „Bearbeiten“, um einen hinzuzufügen.</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>Keine Publisher registriert.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>Stacker 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Tinte</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Mögliche Drucke</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Keine Aufträge</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlerhaft</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Restzeit</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartend</translation>
    </message>
    <message>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>wird abgebrochen</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>wird angehalten</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>wird gestoppt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestoppt</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Hellcyan</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Hellmagenta</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>fast leer</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>entfernt</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>nicht erkannt</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>kein Original</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>nicht voll</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>überfüllt</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>im Leerlauf</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>enthält eine Disc</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>schreibt</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>prüft</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>nicht verwendet</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>transportiert</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>führt ein Plug-in aus</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>misst</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>liest</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>druckt</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>reinigt</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>trocknet</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>beschäftigt</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Sicherheitsmodus</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Ausgabekontrollmodus</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Fehlerratenmodus</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Lesemodus</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Eingabe-Stacker</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>Wartung bald fällig</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>Tintenkissen fast voll</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>mechanische Warnung</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>Tintenkissen voll</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>Wartung erforderlich</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>schwerer Fehler</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>Disc-Abdeckung offen</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>Tintenabdeckung offen</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>Tinte leer</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>Abdeckung der Wartungsbox offen</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>Wartungsbox entfernt</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>Wartungsbox voll</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>mechanischer Fehler</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>Stacker 1 entfernt</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>Stacker 2 entfernt</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>Stacker 3 entfernt</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>Stacker 4 offen</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>ausgeschaltet</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>schwerer Druckerfehler</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>Drucker muss gewartet werden</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>Druckerfehler</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>Stacker 1 zu voll</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>Stacker 2 zu voll</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>in Betrieb</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>Stacker 3 zu voll</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>wird initialisiert</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>wird wiederhergestellt</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>wird abgeschlossen</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>Initialisierung angehalten</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>Wiederherstellung angehalten</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>Fehler beim Greifen einer Disc</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>wird gewartet</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>Fehler der Disc-Verwaltung</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>Lüfterfehler</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>Über ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Programmsymbol</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup für Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Registriert Disc-Publisher, zeigt ihren Status und ändert ihre Einstellungen.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Neuen CD/DVD/BD-Publisher registrieren</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Bitte geben Sie die IP-Adresse oder den Hostnamen des CD/DVD-Publishers im Netzwerk an, den Sie registrieren möchten.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Bitte geben Sie einen Namen für den CD/DVD-Publisher ein.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Dieser Name ist bereits registriert.
Bitte verwenden Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>Das Ausgabegerät wurde im Netzwerk nicht gefunden.
Möglicherweise ist der Hostname oder die IP-Adresse falsch, oder das Ausgabegerät ist nicht mit dem Netzwerk verbunden.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Die Einstellung konnte nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Druckkopfreinigung</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Druckkopfreinigung</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Reinigen Sie den Druckkopf nur, wenn im Ausdruck blasse Stellen oder Lücken auftreten, da die Reinigung Tinte verbraucht.
Reicht die Tinte für eine Druckkopfreinigung nicht aus, tauschen Sie zuerst die Tintenpatrone aus.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Druckkopfreinigung</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Druckkopfreinigung</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>Die Reinigung dauert einige Minuten. Sie ist abgeschlossen, wenn die Betriebsanzeige am Bedienfeld des Druckers nicht mehr blinkt. Um die Wirkung der Reinigung zu prüfen, klicken Sie auf „Düsentestmuster drucken“.</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Düsentestmuster drucken</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Düsentest</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Düsentest</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Düsentestmuster</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Drucken Sie ein Muster, um zu prüfen, ob die Düsen des Druckkopfs frei sind.

Prüfen Sie die Kabelverbindung und schalten Sie das Gerät ein. Legen Sie unbedingt Discs mit einem äußeren Druckdurchmesser von mindestens 116&#xa0;mm in Stacker 1 ein.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Düsentest</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Düsentest</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Muster ohne fehlende Segmente</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Muster mit fehlenden Segmenten</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Reinigung erforderlich</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Vergleichen Sie das gedruckte Muster mit den Vorlagen oben. Fehlen im gedruckten Muster Segmente, klicken Sie auf „Reinigen“. Andernfalls klicken Sie auf „Fertig“, um den Düsentest zu beenden.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Reinigen</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Hostname</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Stacker-Einstellungen</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Produktionsmodus</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Standardmodus</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Externe Ausgabe / Kleinserienmodus</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>Batchmodus</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>Stacker 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>Stacker 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Ausgabe-Stacker</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Stacker 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>Nicht verwenden</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Weg der Discs</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Laufwerkseinstellungen</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Zu verwendendes Laufwerk</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Beide verwenden</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Nur Laufwerk 1 verwenden</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Nur Laufwerk 2 verwenden</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Anzahl der Schreibwiederholungen</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Druckereinstellungen</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>&amp;Fehlermarkierung auf fehlerhafte Discs drucken</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Fehlermarkierung</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Druckerwartung</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Düsentest</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Verwenden Sie diese Funktion, wenn im Ausdruck Lücken oder blasse Stellen auftreten.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Druckkopfreinigung</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Verwenden Sie diese Funktion, wenn die Druckqualität nachlässt oder der Düsentest verstopfte Düsen anzeigt.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Wartungsinfo</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Produzierte Discs insgesamt:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[Discs]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Anzahl der bedruckten Discs:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Freier Platz in der Wartungsbox:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Verbrauchte Lebensdauer von Laufwerk 1:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Verbrauchte Lebensdauer von Laufwerk 2:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Versionsinformationen</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Autoloader:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Drucker:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Laufwerk 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Laufwerk 2:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Düsentest</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Druckkopfreinigung</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>Nicht drucken</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Verbrauchte Lebensdauer des Laufwerks:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Laufwerk:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Eigenschaften - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Bitte geben Sie einen Namen für das Ausgabegerät ein.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>„\“ kann im Namen des Ausgabegeräts nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Dieser Name ist bereits registriert.
Bitte verwenden Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>Die Einstellungen konnten nicht geändert werden, weil der Produktionsmodus nicht im Ausgabegerät registriert werden konnte.
Bitte prüfen Sie die Stromversorgung und die Verbindung des Ausgabegeräts und ändern Sie die Einstellungen danach.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Die Einstellung konnte nicht geändert werden.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>Das Ausgabegerät verarbeitet Aufträge, daher konnten die Einstellungen nicht geändert werden.
Bitte ändern Sie sie, wenn alle Aufträge abgeschlossen sind.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Ausgabe-Stacker</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Gemeinsame Einstellungen für die Produktion</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Arbeitsordner</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Benachrichtigung</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Art der Benachrichtigung</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Signalton, wenn ein Auftrag abgeschlossen oder der Eingabe-Stacker leer ist (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Benachrichtigung bei Abschluss eines Auftrags</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Nach Abschluss jedes Auftrags benachrichtigen</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Nach Abschluss aller Aufträge benachrichtigen</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Netzwerk-CD/DVD/BD-Publisher</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Einstellungen zur Kompatibilitätsfreigabe</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Sicherheitsrisiken zulassen und ältere Versionen von Netzwerk-CD/DVD/BD-Publishern freigeben</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Wenn diese Option ausgewählt ist, können Sie die folgenden Geräte verwenden.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Serverversionen vor 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>Es wird dringend empfohlen, auf die neueste Softwareversion zu aktualisieren, um Sicherheitslücken zu schließen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Arbeitsordner auswählen</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>Der Arbeitsordner konnte nicht geändert werden, weil auf diesem Computer ein Auftrag verarbeitet wird.
Bitte ändern Sie den Arbeitsordner, wenn alle Aufträge abgeschlossen sind.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>Der angegebene Ordner kann nicht als Arbeitsordner festgelegt werden.
Bitte geben Sie einen anderen Ordner an.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Die Einstellung konnte nicht geändert werden.</translation>
    </message>
</context>
</TS>
