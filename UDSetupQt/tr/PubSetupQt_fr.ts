<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ListedNameNote</name>
    <message>
        <source>It will be listed without a name.</source>
        <translation>Il figurera dans la liste sans nom.</translation>
    </message>
    <message>
        <source>It will be listed as &quot;%1&quot;.</source>
        <translation>Il figurera dans la liste sous le nom «&#x202f;%1&#x202f;».</translation>
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
        <translation>Duplicateurs</translation>
    </message>
    <message>
        <source>The registered disc publishers and their status</source>
        <translation>Les duplicateurs de disques enregistrés et leur état</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Properties...</source>
        <translation>&amp;Propriétés…</translation>
    </message>
    <message>
        <source>Common &amp;Setting for Publishing…</source>
        <translation>&amp;Paramètres communs de production…</translation>
    </message>
    <message>
        <source>Collect and Save Logs</source>
        <translation>Collecter et enregistrer les journaux</translation>
    </message>
    <message>
        <source>&amp;About Ulmar Disc Setup</source>
        <translation>À &amp;propos d’Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Start Ulmar Disc &amp;Monitor</source>
        <translation>Lancer Ulmar Disc &amp;Monitor</translation>
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
        <translation>Les journaux ont été collectés et enregistrés.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly.</source>
        <translation>Impossible d’exécuter la commande «&#x202f;tar&#x202f;». Vérifiez que l’installation a été effectuée correctement.</translation>
    </message>
    <message>
        <source>Failed to execute tar command. Check that installation has been performed correctly. (%d)</source>
        <translation>Impossible d’exécuter la commande «&#x202f;tar&#x202f;». Vérifiez que l’installation a été effectuée correctement. (%d)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Model name</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Host Name</source>
        <translation>Nom d’hôte</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Transmitting</source>
        <translation>Transmission</translation>
    </message>
    <message>
        <source>Available Space</source>
        <translation>Espace libre</translation>
    </message>
    <message>
        <source>The Publish Mode registered in the output device could not be obtained, so the previously displayed  value is displayed.
The displayed Publish Mode and stacker settings may be different from the values that are actually registered.</source>
        <translation>Le mode de production enregistré dans le périphérique de sortie n’a pas pu être lu. La dernière valeur connue reste affichée.
Le mode de production et les paramètres des chargeurs affichés peuvent différer des valeurs réellement enregistrées.</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Do you want to delete it?</source>
        <translation>Voulez-vous supprimer cet élément&#x202f;?</translation>
    </message>
    <message>
        <source>There are jobs in the output device, so it could not be deleted.
Please delete it after all jobs are finished.</source>
        <translation>Le périphérique de sortie contient des travaux et n’a pas pu être supprimé.
Supprimez-le une fois tous les travaux terminés.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossible de modifier le paramètre.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup collects logs about CD/DVD/BD Publisher, and then saves them in local PC.
Refer to the documentation for what kind of information is collected.
ARVEN Ulmar Disc Setup does not send information.
Would you like to continue?</source>
        <translation>ARVEN Ulmar Disc Setup collecte les journaux relatifs aux duplicateurs CD/DVD/BD et les enregistre sur cet ordinateur.
Pour savoir quelles informations sont collectées, consultez la documentation.
ARVEN Ulmar Disc Setup n’envoie aucune information.
Voulez-vous continuer&#x202f;?</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Archive file to save (*.tgz)</source>
        <translation>Fichier d’archive à enregistrer (*.tgz)</translation>
    </message>
    <message>
        <source>Administrator not registered</source>
        <translation>Administrateur non enregistré</translation>
    </message>
    <message>
        <source>Unsupported version</source>
        <translation>Version non prise en charge</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>No publishers are registered. To add one, choose Add in the Edit menu.</source>
        <translation>Aucun duplicateur n’est enregistré. Choisissez «&#x202f;Ajouter&#x202f;» dans le menu «&#x202f;Édition&#x202f;».</translation>
    </message>
    <message>
        <source>No publishers are registered.</source>
        <translation>Aucun duplicateur n’est enregistré.</translation>
    </message>
</context>
<context>
    <name>StatusProgram</name>
    <message>
        <source>Stacker 4</source>
        <translation>Chargeur 4</translation>
    </message>
    <message>
        <source>Ink</source>
        <translation>Encre</translation>
    </message>
    <message>
        <source>Prints left</source>
        <translation>Impressions restantes</translation>
    </message>
    <message>
        <source>No jobs</source>
        <translation>Aucun travail</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Discs</source>
        <translation>Disques</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échecs</translation>
    </message>
    <message>
        <source>Time left</source>
        <translation>Temps restant</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>running</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>canceling</source>
        <translation>annulation en cours</translation>
    </message>
    <message>
        <source>pausing</source>
        <translation>mise en pause</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arrêt en cours</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>finished</source>
        <translation>terminé</translation>
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
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Light cyan</source>
        <translation>Cyan clair</translation>
    </message>
    <message>
        <source>Light magenta</source>
        <translation>Magenta clair</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>nearly empty</source>
        <translation>presque vide</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>retirée</translation>
    </message>
    <message>
        <source>not recognized</source>
        <translation>non reconnue</translation>
    </message>
    <message>
        <source>not an original</source>
        <translation>non d’origine</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>not full</source>
        <translation>pas plein</translation>
    </message>
    <message>
        <source>too full</source>
        <translation>trop plein</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>inactif</translation>
    </message>
    <message>
        <source>contains a disc</source>
        <translation>contient un disque</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>écriture</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>vérification</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>not used</source>
        <translation>non utilisé</translation>
    </message>
    <message>
        <source>conveying</source>
        <translation>transport</translation>
    </message>
    <message>
        <source>running a plug-in</source>
        <translation>exécution d’un module externe</translation>
    </message>
    <message>
        <source>measuring</source>
        <translation>mesure</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>lecture</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>impression</translation>
    </message>
    <message>
        <source>cleaning</source>
        <translation>nettoyage</translation>
    </message>
    <message>
        <source>drying</source>
        <translation>séchage</translation>
    </message>
    <message>
        <source>busy</source>
        <translation>occupé</translation>
    </message>
    <message>
        <source>Security mode</source>
        <translation>Mode sécurité</translation>
    </message>
    <message>
        <source>Output control mode</source>
        <translation>Mode contrôle de sortie</translation>
    </message>
    <message>
        <source>Error rate mode</source>
        <translation>Mode taux d’erreurs</translation>
    </message>
    <message>
        <source>Read mode</source>
        <translation>Mode lecture</translation>
    </message>
    <message>
        <source>Input Stacker</source>
        <translation>Chargeur d’alimentation</translation>
    </message>
    <message>
        <source>maintenance due soon</source>
        <translation>maintenance bientôt nécessaire</translation>
    </message>
    <message>
        <source>ink pad nearly full</source>
        <translation>tampon absorbeur presque plein</translation>
    </message>
    <message>
        <source>mechanical warning</source>
        <translation>avertissement mécanique</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>hors ligne</translation>
    </message>
    <message>
        <source>ink pad full</source>
        <translation>tampon absorbeur plein</translation>
    </message>
    <message>
        <source>maintenance required</source>
        <translation>maintenance nécessaire</translation>
    </message>
    <message>
        <source>fatal error</source>
        <translation>erreur grave</translation>
    </message>
    <message>
        <source>disc cover open</source>
        <translation>capot des disques ouvert</translation>
    </message>
    <message>
        <source>ink cover open</source>
        <translation>capot d’encre ouvert</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>plus d’encre</translation>
    </message>
    <message>
        <source>maintenance box cover open</source>
        <translation>capot de la boîte de maintenance ouvert</translation>
    </message>
    <message>
        <source>maintenance box removed</source>
        <translation>boîte de maintenance retirée</translation>
    </message>
    <message>
        <source>maintenance box full</source>
        <translation>boîte de maintenance pleine</translation>
    </message>
    <message>
        <source>mechanical error</source>
        <translation>erreur mécanique</translation>
    </message>
    <message>
        <source>stacker 1 removed</source>
        <translation>chargeur 1 retiré</translation>
    </message>
    <message>
        <source>stacker 2 removed</source>
        <translation>chargeur 2 retiré</translation>
    </message>
    <message>
        <source>stacker 3 removed</source>
        <translation>chargeur 3 retiré</translation>
    </message>
    <message>
        <source>stacker 4 open</source>
        <translation>chargeur 4 ouvert</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>éteint</translation>
    </message>
    <message>
        <source>fatal printer error</source>
        <translation>erreur grave de l’imprimante</translation>
    </message>
    <message>
        <source>printer requires maintenance</source>
        <translation>l’imprimante nécessite une maintenance</translation>
    </message>
    <message>
        <source>printer error</source>
        <translation>erreur de l’imprimante</translation>
    </message>
    <message>
        <source>stacker 1 too full</source>
        <translation>chargeur 1 trop plein</translation>
    </message>
    <message>
        <source>stacker 2 too full</source>
        <translation>chargeur 2 trop plein</translation>
    </message>
    <message>
        <source>in operation</source>
        <translation>en fonctionnement</translation>
    </message>
    <message>
        <source>stacker 3 too full</source>
        <translation>chargeur 3 trop plein</translation>
    </message>
    <message>
        <source>initializing</source>
        <translation>initialisation</translation>
    </message>
    <message>
        <source>recovering</source>
        <translation>rétablissement</translation>
    </message>
    <message>
        <source>finalizing</source>
        <translation>finalisation</translation>
    </message>
    <message>
        <source>initialization suspended</source>
        <translation>initialisation suspendue</translation>
    </message>
    <message>
        <source>recovery suspended</source>
        <translation>rétablissement suspendu</translation>
    </message>
    <message>
        <source>disc pick error</source>
        <translation>erreur de saisie d’un disque</translation>
    </message>
    <message>
        <source>under maintenance</source>
        <translation>en maintenance</translation>
    </message>
    <message>
        <source>disc management error</source>
        <translation>erreur de gestion des disques</translation>
    </message>
    <message>
        <source>fan error</source>
        <translation>erreur de ventilateur</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Aucune réponse</translation>
    </message>
</context>
<context>
    <name>aboutDialog</name>
    <message>
        <source>About ARVEN Ulmar Disc Setup</source>
        <translation>À propos d’ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Program icon</source>
        <translation>Icône du programme</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup for Linux</source>
        <translation>ARVEN Ulmar Disc Setup pour Linux</translation>
    </message>
    <message>
        <source>Registers disc publishers, shows their status and changes their settings.</source>
        <translation>Enregistre les duplicateurs de disques, affiche leur état et modifie leurs paramètres.</translation>
    </message>
</context>
<context>
    <name>addPublisherDialog</name>
    <message>
        <source>Register New CD/DVD/BD Publisher</source>
        <translation>Enregistrer un nouveau duplicateur CD/DVD/BD</translation>
    </message>
    <message>
        <source>Please specify the IP address or host name for the CD/DVD Publisher on the network you want to register.</source>
        <translation>Saisissez l’adresse IP ou le nom d’hôte du duplicateur CD/DVD réseau que vous souhaitez enregistrer.</translation>
    </message>
    <message>
        <source>Please type the name of a CD/DVD Publisher.</source>
        <translation>Saisissez un nom pour le duplicateur CD/DVD.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Ce nom est déjà enregistré.
Utilisez un autre nom.</translation>
    </message>
    <message>
        <source>The output device could not be found on the network.
There is a possibility that either the host name or IP address is wrong, or the output device is not connected to the network.</source>
        <translation>Le périphérique de sortie est introuvable sur le réseau.
Le nom d’hôte ou l’adresse IP est peut-être incorrect, ou le périphérique de sortie n’est pas connecté au réseau.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossible de modifier le paramètre.</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning1</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Nettoyage des têtes</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Nettoyage des têtes</translation>
    </message>
    <message>
        <source>Only clean the print head when faint areas or gaps appear in your printout, because cleaning consumes ink.
If there is not enough ink to perform a head cleaning, replace the ink cartridge first.</source>
        <translation>Ne nettoyez la tête d’impression que si l’impression présente des zones pâles ou des manques, car le nettoyage consomme de l’encre.
S’il ne reste pas assez d’encre pour un nettoyage, remplacez d’abord la cartouche d’encre.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
</context>
<context>
    <name>printerMaintHeadCleaning2</name>
    <message>
        <source>Head Cleaning</source>
        <translation>Nettoyage des têtes</translation>
    </message>
    <message>
        <source>Head cleaning</source>
        <translation>Nettoyage des têtes</translation>
    </message>
    <message>
        <source>Cleaning takes a couple of minutes.  Cleaning is finished when the power light on the printer&apos;s control panel stops flashing. To check the effectiveness of the cleaning, click the Print Nozzle Check Pattern.</source>
        <translation>Le nettoyage prend quelques minutes. Il est terminé lorsque le voyant d’alimentation du panneau de commande de l’imprimante cesse de clignoter. Pour vérifier l’efficacité du nettoyage, cliquez sur «&#x202f;Imprimer le motif de vérification&#x202f;».</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Imprimer le motif de vérification</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck1</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Vérification des buses</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Vérification des buses</translation>
    </message>
    <message>
        <source>Nozzle check pattern</source>
        <translation>Motif de vérification des buses</translation>
    </message>
    <message>
        <source>Print a pattern in order to check that the print head nozzles are not blocked.

Check the cable connection and turn the device on. Be sure to set discs with an outside print diameter of 116 mm or more in Stacker 1.</source>
        <translation>Imprimez un motif pour vérifier que les buses de la tête d’impression ne sont pas obstruées.

Vérifiez le branchement du câble et mettez l’appareil sous tension. Veillez à placer dans le chargeur 1 des disques dont le diamètre d’impression extérieur est d’au moins 116&#xa0;mm.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
</context>
<context>
    <name>printerMaintNozzleCheck2</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Vérification des buses</translation>
    </message>
    <message>
        <source>Nozzle check</source>
        <translation>Vérification des buses</translation>
    </message>
    <message>
        <source>Pattern without missing segments</source>
        <translation>Motif sans segment manquant</translation>
    </message>
    <message>
        <source>Pattern with missing segments</source>
        <translation>Motif avec des segments manquants</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bon</translation>
    </message>
    <message>
        <source>Cleaning needed</source>
        <translation>Nettoyage nécessaire</translation>
    </message>
    <message>
        <source>Compare the printed pattern with the sample above. If any segments are missing in the printed pattern, click the Clean button. Otherwise, click the Finish button to quit.</source>
        <translation>Comparez le motif imprimé aux exemples ci-dessus. S’il manque des segments sur le motif imprimé, cliquez sur «&#x202f;Nettoyer&#x202f;». Sinon, cliquez sur «&#x202f;Terminer&#x202f;» pour quitter.</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Nettoyer</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
</context>
<context>
    <name>propertyDialog</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>Nom d’hôte</translation>
    </message>
    <message>
        <source>Stacker Settings</source>
        <translation>Paramètres des chargeurs</translation>
    </message>
    <message>
        <source>Publish Mode</source>
        <translation>Mode de production</translation>
    </message>
    <message>
        <source>Standard mode</source>
        <translation>Mode standard</translation>
    </message>
    <message>
        <source>External Output / Low-volume mode</source>
        <translation>Mode sortie externe / petites séries</translation>
    </message>
    <message>
        <source>Batch mode</source>
        <translation>Mode par lots</translation>
    </message>
    <message>
        <source>Stacker 1</source>
        <translation>Chargeur 1</translation>
    </message>
    <message>
        <source>Stacker 2</source>
        <translation>Chargeur 2</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Chargeur de sortie</translation>
    </message>
    <message>
        <source>Stacker 3</source>
        <translation>Chargeur 3</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Do not use</source>
        <translation>Ne pas utiliser</translation>
    </message>
    <message>
        <source>Way of the discs</source>
        <translation>Trajet des disques</translation>
    </message>
    <message>
        <source>Drive Settings</source>
        <translation>Paramètres des lecteurs</translation>
    </message>
    <message>
        <source>Drive to Use</source>
        <translation>Lecteur à utiliser</translation>
    </message>
    <message>
        <source>Use Both</source>
        <translation>Utiliser les deux</translation>
    </message>
    <message>
        <source>Use Drive 1 Only</source>
        <translation>Utiliser uniquement le lecteur 1</translation>
    </message>
    <message>
        <source>Use Drive 2 Only</source>
        <translation>Utiliser uniquement le lecteur 2</translation>
    </message>
    <message>
        <source>Number of write retries</source>
        <translation>Nombre de nouvelles tentatives d’écriture</translation>
    </message>
    <message>
        <source>Printer Settings</source>
        <translation>Paramètres de l’imprimante</translation>
    </message>
    <message>
        <source>Show &amp;error mark on discs that experience errors</source>
        <translation>Imprimer une marque d’&amp;erreur sur les disques en erreur</translation>
    </message>
    <message>
        <source>Failure error mark</source>
        <translation>Marque d’erreur</translation>
    </message>
    <message>
        <source>Printer Maintenance</source>
        <translation>Maintenance de l’imprimante</translation>
    </message>
    <message>
        <source>Nozzle Check</source>
        <translation>Vérification des buses</translation>
    </message>
    <message>
        <source>Use this utility if gaps or faint areas appear in your printout.</source>
        <translation>Utilisez cette fonction si l’impression présente des manques ou des zones pâles.</translation>
    </message>
    <message>
        <source>Head Cleaning</source>
        <translation>Nettoyage des têtes</translation>
    </message>
    <message>
        <source>Use this utility if your print quality declines or the Nozzle Check indicates clogged nozzles.</source>
        <translation>Utilisez cette fonction si la qualité d’impression baisse ou si la vérification des buses révèle des buses obstruées.</translation>
    </message>
    <message>
        <source>Maintenance Info</source>
        <translation>Infos de maintenance</translation>
    </message>
    <message>
        <source>Total discs published:</source>
        <translation>Total des disques produits&#x202f;:</translation>
    </message>
    <message>
        <source>[discs]</source>
        <translation>[disques]</translation>
    </message>
    <message>
        <source>Number of printed discs:</source>
        <translation>Nombre de disques imprimés&#x202f;:</translation>
    </message>
    <message>
        <source>Maintenance Box free space:</source>
        <translation>Espace libre de la boîte de maintenance&#x202f;:</translation>
    </message>
    <message>
        <source>[%]</source>
        <translation>[%]</translation>
    </message>
    <message>
        <source>Service life of Drive 1:</source>
        <translation>Durée de vie consommée du lecteur 1&#x202f;:</translation>
    </message>
    <message>
        <source>Service life of Drive 2:</source>
        <translation>Durée de vie consommée du lecteur 2&#x202f;:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Numéro de série&#x202f;:</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Informations de version</translation>
    </message>
    <message>
        <source>Autoloader:</source>
        <translation>Robot de chargement&#x202f;:</translation>
    </message>
    <message>
        <source>Printer:</source>
        <translation>Imprimante&#x202f;:</translation>
    </message>
    <message>
        <source>Drive 1:</source>
        <translation>Lecteur 1&#x202f;:</translation>
    </message>
    <message>
        <source>Drive 2:</source>
        <translation>Lecteur 2&#x202f;:</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Serveur&#x202f;:</translation>
    </message>
    <message>
        <source>Ulmar Disc Net Administrator:</source>
        <translation>Ulmar Disc Net Administrator&#x202f;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>propertyDialogEx</name>
    <message>
        <source>Nozzle Check</source>
        <translation>Vérification des buses</translation>
    </message>
    <message>
        <source>Cleaning</source>
        <translation>Nettoyage des têtes</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Do not print</source>
        <translation>Ne pas imprimer</translation>
    </message>
    <message>
        <source>Service life of Drive:</source>
        <translation>Durée de vie consommée du lecteur&#x202f;:</translation>
    </message>
    <message>
        <source>Drive:</source>
        <translation>Lecteur&#x202f;:</translation>
    </message>
    <message>
        <source>Properties - </source>
        <translation>Propriétés - </translation>
    </message>
    <message>
        <source>Please type a name for the output device.</source>
        <translation>Saisissez un nom pour le périphérique de sortie.</translation>
    </message>
    <message>
        <source>&quot;\&quot; cannot be used in the output device name.</source>
        <translation>Le caractère «&#x202f;\&#x202f;» ne peut pas être utilisé dans le nom du périphérique de sortie.</translation>
    </message>
    <message>
        <source>The same name is already registered.
Please use a different name.</source>
        <translation>Ce nom est déjà enregistré.
Utilisez un autre nom.</translation>
    </message>
    <message>
        <source>The settings could not be changed because registration of the Publish Mode in the output device settings failed.
Please change the settings after checking the power supply of the output device and the connection.</source>
        <translation>Les paramètres n’ont pas pu être modifiés, car l’enregistrement du mode de production dans le périphérique de sortie a échoué.
Vérifiez l’alimentation et la connexion du périphérique de sortie, puis modifiez les paramètres.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossible de modifier le paramètre.</translation>
    </message>
    <message>
        <source>This output device is processing jobs and the settings could not be changed.
Please change it after all jobs are completed.</source>
        <translation>Le périphérique de sortie traite des travaux&#x202f;; les paramètres n’ont pas pu être modifiés.
Modifiez-les une fois tous les travaux terminés.</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>Output Stacker</source>
        <translation>Chargeur de sortie</translation>
    </message>
</context>
<context>
    <name>settingDialog</name>
    <message>
        <source>Common Setting for Publishing</source>
        <translation>Paramètres communs de production</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Working Folder</source>
        <translation>Dossier de travail</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <source>Notification Settings</source>
        <translation>Notification</translation>
    </message>
    <message>
        <source>Notification Method</source>
        <translation>Mode de notification</translation>
    </message>
    <message>
        <source>Beep when a job is finished, or when the source stacker is empty (RT-300III)</source>
        <translation>Signal sonore à la fin d’un travail ou si le chargeur d’alimentation est vide (RT-300III)</translation>
    </message>
    <message>
        <source>Notification when a job is finished</source>
        <translation>Notification de fin de travail</translation>
    </message>
    <message>
        <source>Notify after each job is finished</source>
        <translation>Notifier à la fin de chaque travail</translation>
    </message>
    <message>
        <source>Notify after all jobs are finished</source>
        <translation>Notifier une fois tous les travaux terminés</translation>
    </message>
    <message>
        <source>Network CD/DVD/BD Publisher</source>
        <translation>Duplicateur CD/DVD/BD réseau</translation>
    </message>
    <message>
        <source>Compatibility Approval Settings</source>
        <translation>Autorisation de compatibilité</translation>
    </message>
    <message>
        <source>Allow security risks and approve the use of older versions of network CD/DVD/BD publishers</source>
        <translation>Autoriser les anciennes versions de duplicateurs CD/DVD/BD réseau malgré les risques de sécurité</translation>
    </message>
    <message>
        <source>When this is selected, you can use the following devices.</source>
        <translation>Lorsque cette option est sélectionnée, vous pouvez utiliser les appareils suivants.</translation>
    </message>
    <message>
        <source>RT-300NII:</source>
        <translation>RT-300NII&#x202f;:</translation>
    </message>
    <message>
        <source>Server versions older than 3.30</source>
        <translation>Versions du serveur antérieures à 3.30</translation>
    </message>
    <message>
        <source>It is strongly recommended that you upgrade to the latest software version to handle vulnerabilities.</source>
        <translation>Pour corriger les vulnérabilités, il est vivement recommandé de passer à la dernière version du logiciel.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>settingDialogEx</name>
    <message>
        <source>Select working folder.</source>
        <translation>Sélectionner le dossier de travail</translation>
    </message>
    <message>
        <source>ARVEN Ulmar Disc Setup</source>
        <translation>ARVEN Ulmar Disc Setup</translation>
    </message>
    <message>
        <source>The working folder could not be changed because there is a job being processed on this computer.
Please change the working folder after all jobs are finished.</source>
        <translation>Le dossier de travail n’a pas pu être modifié, car un travail est en cours de traitement sur cet ordinateur.
Modifiez le dossier de travail une fois tous les travaux terminés.</translation>
    </message>
    <message>
        <source>The specified folder cannot be set as the working folder.
Specify a different folder.</source>
        <translation>Le dossier indiqué ne peut pas être défini comme dossier de travail.
Indiquez un autre dossier.</translation>
    </message>
    <message>
        <source>Failed to change setting.</source>
        <translation>Impossible de modifier le paramètre.</translation>
    </message>
</context>
</TS>
