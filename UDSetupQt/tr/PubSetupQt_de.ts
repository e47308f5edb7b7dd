<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Entfernen...</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>Ei&amp;genschaften...</translation>
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
        <translation>Der im Ausgabegerät registrierte Produktionsmodus konnte nicht abgerufen werden, daher wird der zuletzt angezeigte Wert angezeigt.
Der angezeigte Produktionsmodus und die Einstellungen der Stacker können von den tatsächlich registrierten Werten abweichen.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Möchten Sie den Eintrag löschen?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Im Ausgabegerät befinden sich Aufträge, daher konnte es nicht gelöscht werden.
Bitte löschen Sie es, wenn alle Aufträge abgeschlossen sind.</translation>
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
</TS>
