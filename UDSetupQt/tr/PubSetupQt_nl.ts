<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>Komt zonder naam in de lijst.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>Komt in de lijst als ‘%1’.</translation>
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
        <translation>Publishers</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>De geregistreerde disc-publishers en hun status</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>E&amp;xtra</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Werkbalk</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Toevoegen…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Verwijderen…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Eigenschappen…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>Gemeenschappelijke productie-&amp;instellingen…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Logboeken verzamelen en opslaan</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>&amp;Over Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Ulmar Disc &amp;Monitor starten</translation>
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
        <translation>De logboeken zijn verzameld en opgeslagen.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>De opdracht ‘tar’ kon niet worden uitgevoerd. Controleer of de installatie juist is uitgevoerd.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>De opdracht ‘tar’ kon niet worden uitgevoerd. Controleer of de installatie juist is uitgevoerd. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Hostnaam</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wachtend</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Verzenden</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Vrije ruimte</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>De productiemodus die in het uitvoerapparaat is geregistreerd, kon niet worden opgehaald. Daarom wordt de laatst bekende waarde weergegeven.
De weergegeven productiemodus en stackerinstellingen kunnen afwijken van de werkelijk geregistreerde waarden.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Wilt u dit item verwijderen?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Het uitvoerapparaat bevat nog taken en kon daarom niet worden verwijderd.
Verwijder het nadat alle taken zijn voltooid.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>De instelling kon niet worden gewijzigd.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup verzamelt logboeken over de CD/DVD/BD-publishers en slaat ze op deze computer op.
Raadpleeg de documentatie om te zien welke gegevens worden verzameld.
ARVEN Ulmar Disc Setup verzendt geen gegevens.
Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Opslaan als</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>Op te slaan archiefbestand (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Geen beheerder geregistreerd</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Versie wordt niet ondersteund</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>Er zijn geen publishers geregistreerd. Kies ‘Toevoegen’ in het menu ‘Bewerken’ om er een toe te voegen.</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>Er zijn geen publishers geregistreerd.</translation>
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
        <translation>Inkt</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Resterende afdrukken</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Geen taken</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Taak</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Discs</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Resterende tijd</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wachtend</translation>
    </message>
    <message>
        <source>running</source>
        <translation>bezig</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>wordt geannuleerd</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>wordt gepauzeerd</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>gepauzeerd</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>wordt gestopt</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>gestopt</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>voltooid</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyaan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Geel</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Lichtcyaan</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Lichtmagenta</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Zwart</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>bijna leeg</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>verwijderd</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>niet herkend</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>niet origineel</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>niet vol</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>te vol</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactief</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>bevat een disc</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>schrijft</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>controleert</translation>
    </message>
    <message>
        <source>error</source>
        <translation>fout</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>niet gebruikt</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>transporteert</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>voert een plug-in uit</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>meet</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>leest</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>drukt af</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>reinigt</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>droogt</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>bezet</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Beveiligingsmodus</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Uitvoercontrolemodus</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Foutpercentagemodus</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Leesmodus</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Invoerstacker</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>binnenkort onderhoud nodig</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>inktkussen bijna vol</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>mechanische waarschuwing</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>inktkussen vol</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>onderhoud nodig</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>ernstige fout</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>discklep open</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>inktklep open</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>inkt op</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>klep van onderhoudsbox open</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>onderhoudsbox verwijderd</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>onderhoudsbox vol</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>mechanische fout</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>stacker 1 verwijderd</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>stacker 2 verwijderd</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>stacker 3 verwijderd</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>stacker 4 open</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>uitgeschakeld</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>ernstige printerfout</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>printer heeft onderhoud nodig</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>printerfout</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>stacker 1 te vol</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>stacker 2 te vol</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>in bedrijf</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>stacker 3 te vol</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>initialiseren</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>herstellen</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>afronden</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>initialisatie onderbroken</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>herstel onderbroken</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>fout bij oppakken van disc</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>in onderhoud</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>fout in discbeheer</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>ventilatorfout</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Geen antwoord</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>Over ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Programmapictogram</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup voor Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Registreert disc-publishers, toont hun status en wijzigt hun instellingen.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Nieuwe CD/DVD/BD-publisher registreren</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Geef het IP-adres of de hostnaam op van de CD/DVD-publisher in het netwerk die u wilt registreren.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Typ een naam voor de CD/DVD-publisher.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Deze naam is al geregistreerd.
Gebruik een andere naam.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>Het uitvoerapparaat is niet gevonden in het netwerk.
Mogelijk is de hostnaam of het IP-adres onjuist, of is het uitvoerapparaat niet met het netwerk verbonden.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>De instelling kon niet worden gewijzigd.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Printkop reinigen</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Printkop reinigen</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Reinig de printkop alleen als er vage of ontbrekende delen in de afdruk voorkomen, want bij het reinigen wordt inkt verbruikt.
Als er onvoldoende inkt is om de printkop te reinigen, vervang dan eerst de inktcartridge.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>Printkop reinigen</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Printkop reinigen</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>Het reinigen duurt enkele minuten en is voltooid wanneer het aan/uit-lampje op het bedieningspaneel van de printer niet meer knippert. Klik op ‘Controlepatroon afdrukken’ om het resultaat van de reiniging te controleren.</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Controlepatroon afdrukken</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Spuitkanaaltjes controleren</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Spuitkanaaltjes controleren</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Controlepatroon voor de spuitkanaaltjes</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Druk een patroon af om te controleren of er spuitkanaaltjes van de printkop verstopt zijn.

Controleer de kabelaansluiting en zet het apparaat aan. Zorg ervoor dat u in stacker 1 discs met een buitenste afdrukdiameter van 116&#xa0;mm of meer plaatst.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Spuitkanaaltjes controleren</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Spuitkanaaltjes controleren</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Patroon zonder ontbrekende segmenten</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Patroon met ontbrekende segmenten</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Goed</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Reiniging nodig</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Vergelijk het afgedrukte patroon met de voorbeelden hierboven. Klik op ‘Reinigen’ als er segmenten in het afgedrukte patroon ontbreken. Klik anders op ‘Voltooien’ om de controle te beëindigen.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Reinigen</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Hostnaam</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Stackerinstellingen</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Productiemodus</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Standaardmodus</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Modus externe uitvoer / kleine oplage</translation>
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
        <translation>Uitvoerstacker</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Stacker 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Gebruiken</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>Niet gebruiken</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Route van de discs</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Stationsinstellingen</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Te gebruiken station</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Beide gebruiken</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Alleen station 1 gebruiken</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Alleen station 2 gebruiken</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Aantal nieuwe schrijfpogingen</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Printerinstellingen</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>&amp;Foutmarkering afdrukken op discs met fouten</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Foutmarkering</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Printeronderhoud</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Spuitkanaaltjes controleren</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Gebruik deze functie als er ontbrekende of vage delen in de afdruk voorkomen.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Printkop reinigen</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Gebruik deze functie als de afdrukkwaliteit afneemt of als uit de controle blijkt dat er spuitkanaaltjes verstopt zijn.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Onderhoudsgegevens</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Totaal aantal geproduceerde discs:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[discs]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Aantal bedrukte discs:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Vrije ruimte in de onderhoudsbox:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Verbruikte levensduur van station 1:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Verbruikte levensduur van station 2:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Serienummer:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Versiegegevens</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Autoloader:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Printer:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Station 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Station 2:</translation>
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
        <translation>&amp;Toepassen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Spuitkanaaltjes controleren</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Printkop reinigen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>Niet afdrukken</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Verbruikte levensduur van het station:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Station:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Eigenschappen - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Typ een naam voor het uitvoerapparaat.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>Het teken ‘\’ kan niet worden gebruikt in de naam van het uitvoerapparaat.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Deze naam is al geregistreerd.
Gebruik een andere naam.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>De instellingen konden niet worden gewijzigd omdat de productiemodus niet in het uitvoerapparaat kon worden geregistreerd.
Controleer de voeding en de verbinding van het uitvoerapparaat en wijzig daarna de instellingen.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>De instelling kon niet worden gewijzigd.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>Het uitvoerapparaat verwerkt taken. De instellingen konden daarom niet worden gewijzigd.
Wijzig de instellingen nadat alle taken zijn voltooid.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Uitvoerstacker</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Gemeenschappelijke productie-instellingen</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Werkmap</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bladeren…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Manier van melden</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Geluidssignaal wanneer een taak is voltooid of de invoerstacker leeg is (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Melding wanneer een taak is voltooid</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Melden na elke voltooide taak</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Melden nadat alle taken zijn voltooid</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Netwerk-CD/DVD/BD-publisher</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Compatibiliteitsgoedkeuring</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Oudere versies van netwerk-CD/DVD/BD-publishers toestaan ondanks de beveiligingsrisico’s</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Als deze optie is ingeschakeld, kunt u de volgende apparaten gebruiken.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Serverversies ouder dan 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>Het wordt sterk aanbevolen de software bij te werken naar de nieuwste versie om beveiligingslekken te verhelpen.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Toepassen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Werkmap selecteren</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>De werkmap kon niet worden gewijzigd omdat er op deze computer een taak wordt verwerkt.
Wijzig de werkmap nadat alle taken zijn voltooid.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>De opgegeven map kan niet als werkmap worden ingesteld.
Geef een andere map op.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>De instelling kon niet worden gewijzigd.</translation>
    </message>
</context>
</TS>
