<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>Apparirà nell’elenco senza nome.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>Apparirà nell’elenco come «%1».</translation>
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
        <translation>I publisher di dischi registrati e il loro stato</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>&amp;Strumenti</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra degli strumenti</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Aggiungi…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Rimuovi…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Proprietà…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>&amp;Impostazioni comuni di produzione…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Raccogli e salva registri</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>&amp;Informazioni su Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Avvia Ulmar Disc &amp;Monitor</translation>
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
        <translation>I registri sono stati raccolti e salvati.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>Impossibile eseguire il comando «tar». Verificare che l’installazione sia stata eseguita correttamente.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>Impossibile eseguire il comando «tar». Verificare che l’installazione sia stata eseguita correttamente. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Nome host</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Trasmissione</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Spazio libero</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>Impossibile leggere la modalità di produzione registrata nel dispositivo di uscita. Viene mostrato l’ultimo valore noto.
La modalità di produzione e le impostazioni degli impilatori visualizzate possono differire dai valori effettivamente registrati.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Rimuovere questo elemento?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Impossibile rimuovere il dispositivo di uscita perché contiene lavori.
Rimuoverlo al termine di tutti i lavori.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossibile modificare l’impostazione.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup raccoglie i registri dei publisher CD/DVD/BD e li salva su questo computer.
Per sapere quali informazioni vengono raccolte, consultare la documentazione.
ARVEN Ulmar Disc Setup non invia alcuna informazione.
Continuare?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>File di archivio da salvare (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Amministratore non registrato</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Versione non supportata</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>Nessun publisher registrato. Per aggiungerne uno, scegliere «Aggiungi» nel menu «Modifica».</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>Nessun publisher registrato.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>Impilatore 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Inchiostro</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Stampe rimanenti</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Nessun lavoro</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Dischi</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riusciti</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Tempo rimanente</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>in attesa</translation>
    </message>
    <message>
        <source>running</source>
        <translation>in corso</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>annullamento in corso</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>sospensione in corso</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>in pausa</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arresto in corso</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrestato</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>terminato</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Ciano chiaro</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Magenta chiaro</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>quasi esaurito</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>rimossa</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>non riconosciuta</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>non originale</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>non pieno</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>troppo pieno</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inattivo</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>contiene un disco</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>scrittura</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>verifica</translation>
    </message>
    <message>
        <source>error</source>
        <translation>errore</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>non utilizzato</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>trasporto</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>esecuzione di un plug-in</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>misurazione</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>lettura</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>stampa</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>pulizia</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>asciugatura</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupato</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Modalità sicurezza</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Modalità controllo uscita</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Modalità tasso di errore</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Modalità lettura</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Impilatore di ingresso</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>manutenzione prossima</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>tampone assorbi-inchiostro quasi pieno</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>avviso meccanico</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>tampone assorbi-inchiostro pieno</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>manutenzione necessaria</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>errore grave</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>coperchio dischi aperto</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>coperchio inchiostro aperto</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>inchiostro esaurito</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>coperchio del contenitore di manutenzione aperto</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>contenitore di manutenzione rimosso</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>contenitore di manutenzione pieno</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>errore meccanico</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>impilatore 1 rimosso</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>impilatore 2 rimosso</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>impilatore 3 rimosso</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>impilatore 4 aperto</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>spento</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>errore grave della stampante</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>la stampante richiede manutenzione</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>errore della stampante</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>impilatore 1 troppo pieno</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>impilatore 2 troppo pieno</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>in funzione</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>impilatore 3 troppo pieno</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>inizializzazione</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>ripristino</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>finalizzazione</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>inizializzazione sospesa</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>ripristino sospeso</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>errore nel prelievo di un disco</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>in manutenzione</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>errore di gestione dei dischi</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>errore della ventola</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>Informazioni su ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Icona del programma</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup per Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Registra i publisher di dischi, ne mostra lo stato e ne modifica le impostazioni.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Registra nuovo publisher CD/DVD/BD</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Specificare l’indirizzo IP o il nome host del publisher CD/DVD di rete da registrare.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Immettere un nome per il publisher CD/DVD.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Questo nome è già registrato.
Utilizzare un nome diverso.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>Impossibile trovare il dispositivo di uscita nella rete.
È possibile che il nome host o l’indirizzo IP non sia corretto oppure che il dispositivo di uscita non sia connesso alla rete.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossibile modificare l’impostazione.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Pulizia testine</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Pulizia testine</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Pulire la testina di stampa solo se nella stampa compaiono aree sbiadite o vuoti, perché la pulizia consuma inchiostro.
Se l’inchiostro non è sufficiente per la pulizia, sostituire prima la cartuccia d’inchiostro.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Pulizia testine</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Pulizia testine</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>La pulizia richiede alcuni minuti e termina quando la spia di alimentazione sul pannello di controllo della stampante smette di lampeggiare. Per verificare il risultato della pulizia, fare clic su «Stampa motivo di controllo».</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Stampa motivo di controllo</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Controllo ugelli</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Controllo ugelli</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Motivo di controllo ugelli</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Stampare un motivo per verificare che gli ugelli della testina di stampa non siano ostruiti.

Verificare il collegamento del cavo e accendere il dispositivo. Assicurarsi di inserire nell’impilatore 1 dischi con un diametro di stampa esterno di almeno 116&#xa0;mm.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Controllo ugelli</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Controllo ugelli</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Motivo senza segmenti mancanti</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Motivo con segmenti mancanti</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Corretto</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Pulizia necessaria</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Confrontare il motivo stampato con gli esempi riportati sopra. Se nel motivo stampato mancano segmenti, fare clic su «Pulisci». In caso contrario, fare clic su «Fine» per uscire.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Pulisci</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Nome host</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Impostazioni impilatori</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Modalità di produzione</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Modalità standard</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Modalità uscita esterna / bassa tiratura</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>Modalità batch</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>Impilatore 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>Impilatore 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Impilatore di uscita</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Impilatore 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utilizza</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>Non utilizzare</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Percorso dei dischi</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Impostazioni unità</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Unità da utilizzare</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Utilizza entrambe</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Utilizza solo l’unità 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Utilizza solo l’unità 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Numero di nuovi tentativi di scrittura</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Impostazioni stampante</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>Stampa un contrassegno di &amp;errore sui dischi con errori</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Contrassegno di errore</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Manutenzione stampante</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Controllo ugelli</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Utilizzare questa funzione se nella stampa compaiono vuoti o aree sbiadite.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Pulizia testine</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Utilizzare questa funzione se la qualità di stampa peggiora o se il controllo ugelli indica ugelli ostruiti.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Dati di manutenzione</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Totale dischi prodotti:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[dischi]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Numero di dischi stampati:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Spazio libero nel contenitore di manutenzione:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Durata utile consumata dell’unità 1:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Durata utile consumata dell’unità 2:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Numero di serie:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Informazioni sulle versioni</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Caricatore automatico:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Stampante:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Unità 1:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Unità 2:</translation>
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
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Controllo ugelli</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Pulizia testine</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>Non stampare</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Durata utile consumata dell’unità:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Unità:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Proprietà - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Immettere un nome per il dispositivo di uscita.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>Il carattere «\» non può essere utilizzato nel nome del dispositivo di uscita.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Questo nome è già registrato.
Utilizzare un nome diverso.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>Impossibile modificare le impostazioni perché la registrazione della modalità di produzione nel dispositivo di uscita non è riuscita.
Verificare l’alimentazione e la connessione del dispositivo di uscita, quindi modificare le impostazioni.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossibile modificare l’impostazione.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>Impossibile modificare le impostazioni perché il dispositivo di uscita sta elaborando lavori.
Modificarle al termine di tutti i lavori.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Impilatore di uscita</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Impostazioni comuni di produzione</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Cartella di lavoro</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Metodo di notifica</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Segnale acustico al termine di un lavoro o se l’impilatore di ingresso è vuoto (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Notifica al termine di un lavoro</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Notifica al termine di ogni lavoro</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Notifica al termine di tutti i lavori</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Publisher CD/DVD/BD di rete</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Autorizzazione di compatibilità</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Autorizza versioni precedenti di publisher CD/DVD/BD di rete nonostante i rischi per la sicurezza</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Se questa opzione è selezionata, è possibile utilizzare i dispositivi seguenti.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Versioni del server precedenti alla 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>Per correggere le vulnerabilità, si consiglia vivamente di aggiornare il software alla versione più recente.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Applica</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Seleziona cartella di lavoro</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>Impossibile modificare la cartella di lavoro perché su questo computer è in corso l’elaborazione di un lavoro.
Modificare la cartella di lavoro al termine di tutti i lavori.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>La cartella specificata non può essere impostata come cartella di lavoro.
Specificare una cartella diversa.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossibile modificare l’impostazione.</translation>
    </message>
</context>
</TS>
