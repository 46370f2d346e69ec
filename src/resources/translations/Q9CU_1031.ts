<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Dialog1001</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>Dialog1002</name>
    <message>
        <source>Configuration Wizard</source>
        <translation>Konfigurationsassistent</translation>
    </message>
    <message>
        <source>&lt;  Back</source>
        <translation>&lt;  Zurück</translation>
    </message>
    <message>
        <source>Next  &gt;</source>
        <translation>Weiter  &gt;</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Dialog1003</name>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Scan compressed files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Close the Scan View window automatically if viruses are not detected</source>
        <translation>Prüffenster ohne Virenfund automatisch schließen</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Compressed files</source>
        <translation>Komprimierte Dateien</translation>
    </message>
    <message>
        <source>Recompress after repairing(ZIP file)</source>
        <translation>Nach Reparatur neu packen (ZIP)</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
</context>
<context>
    <name>Dialog1004</name>
    <message>
        <source>System Monitoring</source>
        <translation>Systemüberwachung</translation>
    </message>
    <message>
        <source>Checks every file when it is opened, run or saved.</source>
        <translation>Prüft jede Datei, wenn sie geöffnet, ausgeführt oder gespeichert wird.</translation>
    </message>
    <message>
        <source>Internet Monitoring </source>
        <translation>Internetüberwachung </translation>
    </message>
    <message>
        <source>Scans files downloaded from the Internet before they are opened.</source>
        <translation>Prüft aus dem Internet geladene Dateien, bevor sie geöffnet werden.</translation>
    </message>
    <message>
        <source>Instant Messenger Monitoring</source>
        <translation>Instant-Messenger-Überwachung</translation>
    </message>
    <message>
        <source>Scans files received through instant messenger programs.</source>
        <translation>Prüft über Instant-Messenger-Programme empfangene Dateien.</translation>
    </message>
    <message>
        <source>Startup Program Monitoring </source>
        <translation>Autostart-Überwachung </translation>
    </message>
    <message>
        <source>Checks the programs that start automatically with the system.</source>
        <translation>Prüft die Programme, die automatisch mit dem System starten.</translation>
    </message>
    <message>
        <source>POP3 Monitoring</source>
        <translation>POP3-Überwachung</translation>
    </message>
    <message>
        <source>Scans incoming e-mail and attachments as they are downloaded.</source>
        <translation>Prüft eingehende E-Mails und Anhänge beim Herunterladen.</translation>
    </message>
    <message>
        <source>more...</source>
        <translation>mehr...</translation>
    </message>
    <message>
        <source>Outlook Scan/Monitoring</source>
        <translation>Outlook-Prüfung/-Überwachung</translation>
    </message>
    <message>
        <source>Scans e-mail as your e-mail program receives and sends it.</source>
        <translation>Prüft E-Mails, während Ihr E-Mail-Programm sie empfängt und sendet.</translation>
    </message>
    <message>
        <source>Screen Saver Scan</source>
        <translation>Bildschirmschoner-Prüfung</translation>
    </message>
    <message>
        <source>Scans the computer while the screen saver is running.</source>
        <translation>Prüft den Computer, während der Bildschirmschoner läuft.</translation>
    </message>
    <message>
        <source>Set List to Scan</source>
        <translation>Prüfliste festlegen</translation>
    </message>
    <message>
        <source>Office Guard</source>
        <translation>Office-Schutz</translation>
    </message>
    <message>
        <source>Protects office documents against macro viruses.</source>
        <translation>Schützt Office-Dokumente vor Makroviren.</translation>
    </message>
    <message>
        <source>Explorer Scan</source>
        <translation>Explorer-Prüfung</translation>
    </message>
    <message>
        <source>Adds scan commands to the menus and toolbars of the file browser.</source>
        <translation>Fügt Menüs und Symbolleisten des Dateimanagers Prüfbefehle hinzu.</translation>
    </message>
</context>
<context>
    <name>Dialog1007</name>
    <message>
        <source>Set List to Scan</source>
        <translation>Prüfliste festlegen</translation>
    </message>
    <message>
        <source>If [List to Scan] is not set, all of the local hard drives will be scanned.</source>
        <translation>Wenn die [Prüfliste] nicht festgelegt ist, werden alle lokalen Festplatten geprüft.</translation>
    </message>
    <message>
        <source>Add  &gt;&gt;</source>
        <translation>Hinzufügen  &gt;&gt;</translation>
    </message>
    <message>
        <source>&lt;&lt; Delete</source>
        <translation>&lt;&lt; Löschen</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Dialog1008</name>
    <message>
        <source>Choose the intervals for the virus scan. Select the drives or folders to scan from the left frame, and click [Add &gt;&gt;]. If you do not enable the [List to Scan], all local hard drives will be scanned.</source>
        <translation>Wählen Sie die Intervalle für die Virenprüfung. Wählen Sie links die zu prüfenden Laufwerke oder Ordner und klicken Sie auf [Hinzufügen &gt;&gt;]. Ist die [Prüfliste] leer, werden alle lokalen Festplatten geprüft.</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Datum :</translation>
    </message>
    <message>
        <source>Time :</source>
        <translation>Uhrzeit :</translation>
    </message>
    <message>
        <source>Add  &gt;&gt;</source>
        <translation>Hinzufügen  &gt;&gt;</translation>
    </message>
    <message>
        <source>&lt;&lt; Delete</source>
        <translation>&lt;&lt; Löschen</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>Authorization Setting</source>
        <translation>Kontoeinstellungen</translation>
    </message>
</context>
<context>
    <name>Dialog1009</name>
    <message>
        <source>Schedule Scan Wizard</source>
        <translation>Assistent für geplante Prüfungen</translation>
    </message>
    <message>
        <source>&lt;  Back</source>
        <translation>&lt;  Zurück</translation>
    </message>
    <message>
        <source>Next  &gt;</source>
        <translation>Weiter  &gt;</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Dialog1010</name>
    <message>
        <source>2. Select the method for scheduled virus scans and repairs.</source>
        <translation>2. Wählen Sie, wie geplante Prüfungen prüfen und reparieren.</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Scan compressed files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Close the Scan View window automatically if viruses are not detected</source>
        <translation>Prüffenster ohne Virenfund automatisch schließen</translation>
    </message>
    <message>
        <source>Scan in the background </source>
        <translation>Im Hintergrund prüfen </translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Compressed files</source>
        <translation>Komprimierte Dateien</translation>
    </message>
    <message>
        <source>Recompress after repairing(ZIP file)</source>
        <translation>Nach Reparatur neu packen (ZIP)</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
</context>
<context>
    <name>Dialog1013</name>
    <message>
        <source>Select the functions to use</source>
        <translation>Zu verwendende Funktionen auswählen</translation>
    </message>
    <message>
        <source>System Monitoring</source>
        <translation>Systemüberwachung</translation>
    </message>
    <message>
        <source>Checks every file when it is opened, run or saved.</source>
        <translation>Prüft jede Datei, wenn sie geöffnet, ausgeführt oder gespeichert wird.</translation>
    </message>
    <message>
        <source>Internet Monitoring</source>
        <translation>Internetüberwachung</translation>
    </message>
    <message>
        <source>Scans files downloaded from the Internet before they are opened.</source>
        <translation>Prüft aus dem Internet geladene Dateien, bevor sie geöffnet werden.</translation>
    </message>
    <message>
        <source>Instant Messenger Monitoring</source>
        <translation>Instant-Messenger-Überwachung</translation>
    </message>
    <message>
        <source>Scans files received through instant messenger programs.</source>
        <translation>Prüft über Instant-Messenger-Programme empfangene Dateien.</translation>
    </message>
    <message>
        <source>Startup Program Monitoring</source>
        <translation>Autostart-Überwachung</translation>
    </message>
    <message>
        <source>Checks the programs that start automatically with the system.</source>
        <translation>Prüft die Programme, die automatisch mit dem System starten.</translation>
    </message>
    <message>
        <source>Office Guard</source>
        <translation>Office-Schutz</translation>
    </message>
    <message>
        <source>Screen Saver Scan</source>
        <translation>Bildschirmschoner-Prüfung</translation>
    </message>
    <message>
        <source>Scans the computer while the screen saver is running.</source>
        <translation>Prüft den Computer, während der Bildschirmschoner läuft.</translation>
    </message>
    <message>
        <source>Short cut menus</source>
        <translation>Kontextmenüs</translation>
    </message>
    <message>
        <source>Adds a scan command to the shortcut menus of files and folders.</source>
        <translation>Fügt den Datei- und Ordnerkontextmenüs einen Prüfbefehl hinzu.</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Symbolleisten</translation>
    </message>
    <message>
        <source>Adds a scan button to the toolbars of file browser windows.</source>
        <translation>Fügt den Dateimanager-Symbolleisten eine Prüfschaltfläche hinzu.</translation>
    </message>
    <message>
        <source>Protects office documents against macro viruses.</source>
        <translation>Schützt Office-Dokumente vor Makroviren.</translation>
    </message>
</context>
<context>
    <name>Dialog1014</name>
    <message>
        <source>Select the functions to use</source>
        <translation>Zu verwendende Funktionen auswählen</translation>
    </message>
    <message>
        <source>POP3 Monitoring</source>
        <translation>POP3-Überwachung</translation>
    </message>
    <message>
        <source>Outlook Scan</source>
        <translation>Outlook-Prüfung</translation>
    </message>
    <message>
        <source>Lets you scan the mail folders of your e-mail program on request.</source>
        <translation>Prüft die Postfächer Ihres E-Mail-Programms auf Anforderung.</translation>
    </message>
    <message>
        <source>Outlook Monitoring</source>
        <translation>Outlook-Überwachung</translation>
    </message>
    <message>
        <source>Scans e-mail as your e-mail program receives and sends it.</source>
        <translation>Prüft E-Mails, während Ihr E-Mail-Programm sie empfängt und sendet.</translation>
    </message>
    <message>
        <source>Scans incoming e-mail and attachments as they are downloaded.</source>
        <translation>Prüft eingehende E-Mails und Anhänge beim Herunterladen.</translation>
    </message>
</context>
<context>
    <name>Dialog102</name>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>Dialog1024</name>
    <message>
        <source>Authorization Setting</source>
        <translation>Kontoeinstellungen</translation>
    </message>
    <message>
        <source>Please enter the user name and password for the scheduled scan.</source>
        <translation>Benutzername und Kennwort, unter denen die geplante Prüfung läuft:</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Please enter the user name and password for access to the network directories.</source>
        <translation>Benutzername und Kennwort für den Zugriff auf Netzwerkordner:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Dialog1028</name>
    <message>
        <source>Add folders</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Dialog1029</name>
    <message>
        <source>Add extensions</source>
        <translation>Erweiterungen hinzufügen</translation>
    </message>
    <message>
        <source>Enter extensions excluded from the scan.
(ex) dmp/tmp/dbx/ttf</source>
        <translation>Von der Prüfung ausgeschlossene Erweiterungen eingeben.
(Bsp.) dmp/tmp/dbx/ttf</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Dialog1030</name>
    <message>
        <source>Setting Status</source>
        <translation>Einstellungsstatus</translation>
    </message>
</context>
<context>
    <name>Dialog1031</name>
    <message>
        <source>Startup Program Monitoring</source>
        <translation>Autostart-Überwachung</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Items to monitor :</source>
        <translation>Zu überwachen:</translation>
    </message>
    <message>
        <source>Registries</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>Startup program folders</source>
        <translation>Autostart-Ordner</translation>
    </message>
    <message>
        <source>System files</source>
        <translation>Systemdateien</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
</context>
<context>
    <name>Dialog1032</name>
    <message>
        <source>Instant Messenger Monitoring</source>
        <translation>Instant-Messenger-Überwachung</translation>
    </message>
    <message>
        <source>Instant Messenger</source>
        <translation>Instant Messenger</translation>
    </message>
    <message>
        <source>Auto Recognition(Recommended)</source>
        <translation>Automatisch (empfohlen)</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Scan compressed files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Recompress after repairing(ZIP file)</source>
        <translation>Nach Reparatur neu packen (ZIP)</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Compressed files</source>
        <translation>Komprimierte Dateien</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
</context>
<context>
    <name>Dialog1035</name>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Execution files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>Script files</source>
        <translation>Skriptdateien</translation>
    </message>
    <message>
        <source>Customized</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>(ex) exe/dll/doc</source>
        <translation>(z. B.) exe/dll/doc</translation>
    </message>
</context>
<context>
    <name>Dialog1036</name>
    <message>
        <source>Scan compressed files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Depth of multi-compressed files:</source>
        <translation>Tiefe mehrfach komprimierter Dateien:</translation>
    </message>
    <message>
        <source>Executable compressed files(PKLITE, LZEXE, DIET)</source>
        <translation>Ausführbare komprimierte Dateien (PKLITE, LZEXE, DIET)</translation>
    </message>
    <message>
        <source>Incremental Scan</source>
        <translation>Inkrementelle Prüfung</translation>
    </message>
    <message>
        <source>All compressed file types</source>
        <translation>Alle komprimierten Dateitypen</translation>
    </message>
</context>
<context>
    <name>Dialog1037</name>
    <message>
        <source>Scan floppy disc boot sector</source>
        <translation>Bootsektor von Disketten prüfen</translation>
    </message>
    <message>
        <source>Scan floppy disc when closing the Windows </source>
        <translation>Disketten beim Beenden von Windows prüfen </translation>
    </message>
    <message>
        <source>Scan local drive reading</source>
        <translation>Beim Lesen von lokalen Laufwerken prüfen</translation>
    </message>
    <message>
        <source>Scan local drive writing</source>
        <translation>Beim Schreiben auf lokale Laufwerke prüfen</translation>
    </message>
    <message>
        <source>Scan network drive reading</source>
        <translation>Beim Lesen von Netzlaufwerken prüfen</translation>
    </message>
    <message>
        <source>Scan network drive writing</source>
        <translation>Beim Schreiben auf Netzlaufwerke prüfen</translation>
    </message>
    <message>
        <source>Display the warning messages when a virus is found (only for NT series)</source>
        <translation>Warnmeldungen anzeigen, wenn ein Virus gefunden wird (nur NT-Serie)</translation>
    </message>
</context>
<context>
    <name>Dialog1038</name>
    <message>
        <source>Advanced Scan Setting</source>
        <translation>Erweiterte Prüfeinstellungen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>Dialog1039</name>
    <message>
        <source>Scan after disabling the shared files/folders </source>
        <translation>Nach dem Aufheben der Datei-/Ordnerfreigaben prüfen </translation>
    </message>
    <message>
        <source>Scan after closing shells</source>
        <translation>Nach dem Schließen der Shells prüfen</translation>
    </message>
</context>
<context>
    <name>Dialog1040</name>
    <message>
        <source>Scan possible harmful programs</source>
        <translation>Auf potenziell schädliche Programme prüfen</translation>
    </message>
    <message>
        <source>Joke</source>
        <translation>Scherzprogramme</translation>
    </message>
    <message>
        <source>Programs that alarm or annoy the user as a prank</source>
        <translation>Programme, die den Benutzer zum Spaß erschrecken oder stören</translation>
    </message>
    <message>
        <source>Key Logger</source>
        <translation>Keylogger</translation>
    </message>
    <message>
        <source>Programs that record the keys typed</source>
        <translation>Programme, die Tastatureingaben aufzeichnen</translation>
    </message>
    <message>
        <source>Adware</source>
        <translation>Adware</translation>
    </message>
    <message>
        <source>Programs that show advertisements</source>
        <translation>Programme, die Werbung einblenden</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstige</translation>
    </message>
    <message>
        <source>Other programs that can be used to do harm</source>
        <translation>Andere Programme, mit denen Schaden angerichtet werden kann</translation>
    </message>
</context>
<context>
    <name>Dialog107</name>
    <message>
        <source>Alerts</source>
        <translation>Benachrichtigungen</translation>
    </message>
    <message>
        <source>Display an urgent alarm on the Home screen</source>
        <translation>Dringende Warnung auf der Startseite anzeigen</translation>
    </message>
    <message>
        <source>Display an alert icon at the task tray </source>
        <translation>Warnsymbol in der Taskleiste anzeigen </translation>
    </message>
    <message>
        <source>Show %s event messages</source>
        <translation>Ereignismeldungen von %s anzeigen</translation>
    </message>
    <message>
        <source>Show swift update event messages</source>
        <translation>Meldungen der Schnellaktualisierung anzeigen</translation>
    </message>
    <message>
        <source>Show security warning messages</source>
        <translation>Sicherheitswarnungen anzeigen</translation>
    </message>
    <message>
        <source>By emitting an alert sound whenever a virus is detected</source>
        <translation>Bei jedem gefundenen Virus einen Warnton abspielen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Logs and backups</source>
        <translation>Protokolle und Sicherungen</translation>
    </message>
    <message>
        <source>Save the scan logs</source>
        <translation>Prüfprotokolle speichern</translation>
    </message>
    <message>
        <source>Space to save scan logs </source>
        <translation>Platz für Prüfprotokolle </translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>Space to save event logs</source>
        <translation>Platz für Ereignisprotokolle</translation>
    </message>
    <message>
        <source>logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Space to save backup folders </source>
        <translation>Platz für Sicherungsordner </translation>
    </message>
</context>
<context>
    <name>Dialog108</name>
    <message>
        <source>Security functions</source>
        <translation>Sicherheitsfunktionen</translation>
    </message>
    <message>
        <source>Use security functions</source>
        <translation>Sicherheitsfunktionen verwenden</translation>
    </message>
    <message>
        <source>Ask for the password before:</source>
        <translation>Das Kennwort verlangen vor:</translation>
    </message>
    <message>
        <source>Terminate the Real Time Monitoring</source>
        <translation>Beenden der Echtzeitüberwachung</translation>
    </message>
    <message>
        <source>Uninstall program</source>
        <translation>Deinstallieren des Programms</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
</context>
<context>
    <name>Dialog109</name>
    <message>
        <source>Use the items not to scan</source>
        <translation>Ausnahmen von der Prüfung verwenden</translation>
    </message>
    <message>
        <source>Items not to scan :</source>
        <translation>Nicht zu prüfende Elemente:</translation>
    </message>
    <message>
        <source>Add folders</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Add extensions</source>
        <translation>Dateitypen hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>Test a path...</source>
        <translation>Pfad prüfen...</translation>
    </message>
    <message>
        <source>Scan System Restore Folders (Windows Me/XP Only)</source>
        <translation>Systemwiederherstellungsordner prüfen (nur Windows Me/XP)</translation>
    </message>
</context>
<context>
    <name>Dialog110</name>
    <message>
        <source>Macro viruses</source>
        <translation>Makroviren</translation>
    </message>
    <message>
        <source>Repair the detected macro viruses </source>
        <translation>Gefundene Makroviren reparieren </translation>
    </message>
    <message>
        <source>Macros not allowed</source>
        <translation>Keine Makros zulassen</translation>
    </message>
    <message>
        <source>System areas to scan</source>
        <translation>Zu prüfende Systembereiche</translation>
    </message>
    <message>
        <source>Memory Scan</source>
        <translation>Arbeitsspeicher prüfen</translation>
    </message>
    <message>
        <source>Self Scan</source>
        <translation>Selbstprüfung</translation>
    </message>
    <message>
        <source>Boot Sector Scan</source>
        <translation>Bootsektor prüfen</translation>
    </message>
    <message>
        <source>Process Scan</source>
        <translation>Prozesse prüfen</translation>
    </message>
    <message>
        <source>Startup Program Scan</source>
        <translation>Autostart-Programme prüfen</translation>
    </message>
    <message>
        <source>Self protection</source>
        <translation>Selbstschutz</translation>
    </message>
    <message>
        <source>Self Protect</source>
        <translation>Selbstschutz aktivieren</translation>
    </message>
    <message>
        <source>Displaying alert messages to the user</source>
        <translation>Warnmeldungen für den Benutzer anzeigen</translation>
    </message>
</context>
<context>
    <name>Dialog111</name>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Scan compressed files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Close the Scan View window automatically if viruses are not detected</source>
        <translation>Prüffenster ohne Virenfund automatisch schließen</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Compressed files</source>
        <translation>Komprimierte Dateien</translation>
    </message>
    <message>
        <source>Recompress after repairing(ZIP file)</source>
        <translation>Nach Reparatur neu packen (ZIP)</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
</context>
<context>
    <name>Dialog113</name>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>List of scheduled scans:</source>
        <translation>Geplante Prüfungen:</translation>
    </message>
</context>
<context>
    <name>Dialog114</name>
    <message>
        <source>Screensaver Scan</source>
        <translation>Bildschirmschonerprüfung</translation>
    </message>
    <message>
        <source>Set List to Scan</source>
        <translation>Prüfliste festlegen</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Scan compressed files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Close the Scan View window automatically if viruses are not detected</source>
        <translation>Prüffenster ohne Virenfund automatisch schließen</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Compressed files</source>
        <translation>Komprimierte Dateien</translation>
    </message>
    <message>
        <source>Recompress after repairing(ZIP file)</source>
        <translation>Nach Reparatur neu packen (ZIP)</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
</context>
<context>
    <name>Dialog115</name>
    <message>
        <source>System Monitoring</source>
        <translation>Systemüberwachung</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Infector detection</source>
        <translation>Infektorerkennung</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Executing files</source>
        <translation>Laufende Dateien</translation>
    </message>
    <message>
        <source>Blocking</source>
        <translation>Blockieren</translation>
    </message>
    <message>
        <source>Blocking methods :</source>
        <translation>Blockiermethode:</translation>
    </message>
    <message>
        <source>File types to block:  (ex) VBS/SCR/PIF</source>
        <translation>Zu blockieren:  (z. B.) VBS/SCR/PIF</translation>
    </message>
    <message>
        <source>Auto-Restart System Monitoring</source>
        <translation>Überwachung neu starten</translation>
    </message>
    <message>
        <source>Interval:</source>
        <translation>Intervall:</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
</context>
<context>
    <name>Dialog117</name>
    <message>
        <source>Internet Monitoring</source>
        <translation>Internetüberwachung</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Executable files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Advanced...</source>
        <translation>Erweitert...</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Backup files before repairing or deleting</source>
        <translation>Vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
</context>
<context>
    <name>StringTable</name>
    <message>
        <source>Easy Configuration</source>
        <translation>Einfache Konfiguration</translation>
    </message>
    <message>
        <source>Sectors excluded from the scan</source>
        <translation>Von der Prüfung ausgeschlossene Bereiche</translation>
    </message>
    <message>
        <source>Setting the advanced scan</source>
        <translation>Erweiterte Prüfeinstellungen</translation>
    </message>
    <message>
        <source>System scan</source>
        <translation>Systemprüfung</translation>
    </message>
    <message>
        <source>Scheduled scan</source>
        <translation>Zeitgesteuerte Prüfung</translation>
    </message>
    <message>
        <source>Screensaver Scan</source>
        <translation>Bildschirmschonerprüfung</translation>
    </message>
    <message>
        <source>System monitoring</source>
        <translation>Systemüberwachung</translation>
    </message>
    <message>
        <source>POP3 Configuration</source>
        <translation>POP3-Konfiguration</translation>
    </message>
    <message>
        <source>Outlook scan</source>
        <translation>Outlook-Prüfung</translation>
    </message>
    <message>
        <source>Outlook monitoring</source>
        <translation>Outlook-Überwachung</translation>
    </message>
    <message>
        <source>Internet monitoring</source>
        <translation>Internetüberwachung</translation>
    </message>
    <message>
        <source>Security configuration</source>
        <translation>Sicherheitskonfiguration</translation>
    </message>
    <message>
        <source>POP3 Scan</source>
        <translation>POP3-Prüfung</translation>
    </message>
    <message>
        <source>Internet Monitoring</source>
        <translation>Internetüberwachung</translation>
    </message>
    <message>
        <source>System Scan/Monitoring</source>
        <translation>Systemprüfung/-überwachung</translation>
    </message>
    <message>
        <source>E-mail Scan/Monitoring</source>
        <translation>E-Mail-Prüfung/-Überwachung</translation>
    </message>
    <message>
        <source>Warning E-mail</source>
        <translation>Warn-E-Mail</translation>
    </message>
    <message>
        <source>Other Configurations</source>
        <translation>Weitere Einstellungen</translation>
    </message>
    <message>
        <source>Instant Messenger Monitoring</source>
        <translation>Instant-Messenger-Überwachung</translation>
    </message>
    <message>
        <source>Startup Program Monitoring</source>
        <translation>Autostart-Überwachung</translation>
    </message>
    <message>
        <source>Spam Mail Filtering</source>
        <translation>Spam-Filter</translation>
    </message>
    <message>
        <source>Compressed Files</source>
        <translation>Komprimierte Dateien</translation>
    </message>
    <message>
        <source>File Types to Scan</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Scan Method</source>
        <translation>Prüfmethode</translation>
    </message>
    <message>
        <source>Possible Harmful Programs</source>
        <translation>Potenziell schädliche Programme</translation>
    </message>
    <message>
        <source>Select the files to scan and how detected viruses are repaired. These settings apply to all scan and monitoring functions.</source>
        <translation>Wählen Sie die zu prüfenden Dateien und die Behandlung gefundener Viren. Diese Einstellungen gelten für alle Prüf- und Überwachungsfunktionen.</translation>
    </message>
    <message>
        <source>Select the functions that protect the system in real time. Functions that cannot run on this system are not available.</source>
        <translation>Wählen Sie die Funktionen, die das System in Echtzeit schützen. Funktionen, die auf diesem System nicht ausgeführt werden können, sind nicht verfügbar.</translation>
    </message>
    <message>
        <source>You can regularly scan the system with the scheduled scan.</source>
        <translation>Mit der zeitgesteuerten Prüfung können Sie das System regelmäßig prüfen lassen.</translation>
    </message>
    <message>
        <source>Setting the level to scan/repair.</source>
        <translation>Festlegen der Prüf- und Reparaturstufe.</translation>
    </message>
    <message>
        <source>Scheduled Interval</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>List to Scan</source>
        <translation>Prüfliste</translation>
    </message>
    <message>
        <source>Day :</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>Day of the week :</source>
        <translation>Wochentag:</translation>
    </message>
    <message>
        <source>Date :</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Whenever the system starts</source>
        <translation>Bei jedem Systemstart</translation>
    </message>
    <message>
        <source>Everyday</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Every week</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Every month</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>%a</source>
        <translation>%a</translation>
    </message>
    <message>
        <source>%dDay</source>
        <translation>%d. Tag</translation>
    </message>
    <message>
        <source>%YYear %mMonth %dDay</source>
        <translation>%Y-%m-%d</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>Einmalig</translation>
    </message>
    <message>
        <source>Leave as is</source>
        <translation>Unverändert lassen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Process after user verification</source>
        <translation>Nach Rückfrage behandeln</translation>
    </message>
    <message>
        <source>Repair after a forced termination</source>
        <translation>Nach Zwangsbeendigung reparieren</translation>
    </message>
    <message>
        <source>Restart the system after the repair</source>
        <translation>System nach der Reparatur neu starten</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>%d</source>
        <translation>%d</translation>
    </message>
    <message>
        <source>Change the extension to Q9F</source>
        <translation>Dateiendung in Q9F ändern</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Do not block</source>
        <translation>Nicht sperren</translation>
    </message>
    <message>
        <source>Items to Scan</source>
        <translation>Zu prüfende Objekte</translation>
    </message>
    <message>
        <source>Configuration Error</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Please enter the values between %s ~ %s.</source>
        <translation>Bitte geben Sie einen Wert zwischen %s und %s ein.</translation>
    </message>
    <message>
        <source>You have not specified a password or the password you entered is invalid.</source>
        <translation>Sie haben kein Kennwort angegeben, oder das eingegebene Kennwort ist ungültig.</translation>
    </message>
    <message>
        <source>Invalid password.</source>
        <translation>Ungültiges Kennwort.</translation>
    </message>
    <message>
        <source>You haven&apos;t selected any items.</source>
        <translation>Sie haben keine Objekte ausgewählt.</translation>
    </message>
    <message>
        <source>All items will be deleted. 
 Are you sure you want to delete all?</source>
        <translation>Alle Objekte werden gelöscht. 
 Möchten Sie wirklich alle löschen?</translation>
    </message>
    <message>
        <source>The items already exist.</source>
        <translation>Die Objekte sind bereits vorhanden.</translation>
    </message>
    <message>
        <source>You haven&apos;t specified the sectors to be excluded from the scan.
 Please set the sectors to be excluded or disable the checkbox to exclude the sectors.</source>
        <translation>Sie haben keine von der Prüfung ausgeschlossenen Bereiche angegeben.
 Bitte legen Sie die auszuschließenden Bereiche fest, oder deaktivieren Sie das Kontrollkästchen zum Ausschließen von Bereichen.</translation>
    </message>
    <message>
        <source>Cannot create the managed objects of POP3 profile. (%d)</source>
        <translation>Die Verwaltungsobjekte des POP3-Profils können nicht erstellt werden. (%d)</translation>
    </message>
    <message>
        <source>The e-mail program has not been installed on this system.
Please install the program and try again.</source>
        <translation>Das E-Mail-Programm ist auf diesem System nicht installiert.
Bitte installieren Sie das Programm, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The following characters cannot be used as a file type.

\ : * &quot;&quot; . &lt; &gt; |</source>
        <translation>Die folgenden Zeichen dürfen in einem Dateityp nicht vorkommen.

\ : * &quot;&quot; . &lt; &gt; |</translation>
    </message>
    <message>
        <source>This function will be operated normally only when MS Outlook has been installed.</source>
        <translation>Diese Funktion arbeitet nur dann einwandfrei, wenn MS Outlook installiert ist.</translation>
    </message>
    <message>
        <source>Customized file types have not been set.
Please enter the file types to scan.</source>
        <translation>Es wurden keine benutzerdefinierten Dateitypen festgelegt.
Bitte geben Sie die zu prüfenden Dateitypen ein.</translation>
    </message>
    <message>
        <source>The system monitoring will be closed.
When restarting the system, the system monitoring will not restart automatically.
Are you sure you want to close?</source>
        <translation>Die Systemüberwachung wird beendet.
Beim Neustart des Systems wird die Systemüberwachung nicht automatisch wieder gestartet.
Möchten Sie sie wirklich beenden?</translation>
    </message>
    <message>
        <source>Sorry, you are not authorized to execute this task. (%d)
Please ask the administrator for more details.</source>
        <translation>Sie sind leider nicht berechtigt, diese Aufgabe auszuführen. (%d)
Nähere Informationen erhalten Sie von Ihrem Administrator.</translation>
    </message>
    <message>
        <source>Not enough batteries.</source>
        <translation>Der Akku ist fast leer.</translation>
    </message>
    <message>
        <source>A new virus has been detected.</source>
        <translation>Ein neuer Virus wurde gefunden.</translation>
    </message>
    <message>
        <source>Infected by viruses.</source>
        <translation>Mit Viren infiziert.</translation>
    </message>
    <message>
        <source>Failed to initialize the Self Scan.</source>
        <translation>Die Selbstprüfung konnte nicht initialisiert werden.</translation>
    </message>
    <message>
        <source>Unable to execute.</source>
        <translation>Ausführung nicht möglich.</translation>
    </message>
    <message>
        <source>The system monitoring will be closed.
After approximately %d minutes when the system restarts, system monitoring will restart again
Do you want to close?</source>
        <translation>Die Systemüberwachung wird beendet.
Sie wird nach etwa %d Minuten sowie beim Neustart des Systems wieder gestartet.
Möchten Sie sie beenden?</translation>
    </message>
    <message>
        <source>Unable to find the Instant Messenger program.
Please install the Instant Messenger program first and try again.</source>
        <translation>Das Instant-Messenger-Programm wurde nicht gefunden.
Bitte installieren Sie zuerst das Instant-Messenger-Programm, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Failed to initialize the engine.</source>
        <translation>Das Filtermodul konnte nicht initialisiert werden.</translation>
    </message>
    <message>
        <source>The selected item cannot be deleted since it is specified as an item not to scan by other products.</source>
        <translation>Das ausgewählte Objekt kann nicht gelöscht werden, da es von anderen Produkten als nicht zu prüfendes Objekt festgelegt wurde.</translation>
    </message>
    <message>
        <source>All items will be deleted except for the items specified not to scan by this product or other products.
Are you sure you want to delete all?</source>
        <translation>Alle Objekte außer denen, die von diesem oder anderen Produkten von der Prüfung ausgenommen wurden, werden gelöscht.
Möchten Sie wirklich alle löschen?</translation>
    </message>
    <message>
        <source>Switch to customized setting.
Protection level set in easy configuration will no longer have an effect.</source>
        <translation>Es wird zur benutzerdefinierten Einstellung gewechselt.
Die in der einfachen Konfiguration gewählte Schutzstufe ist dann nicht mehr wirksam.</translation>
    </message>
    <message>
        <source>Either &quot;Scan Local Drive Reading&quot; or &quot;Scan Local Drive Writing&quot; must be selected.</source>
        <translation>Es muss entweder &quot;Beim Lesen von lokalen Laufwerken prüfen&quot; oder &quot;Beim Schreiben auf lokale Laufwerke prüfen&quot; ausgewählt sein.</translation>
    </message>
    <message>
        <source>Specify an e-mail account manully or select &quot;Auto Recognition&quot;.</source>
        <translation>Geben Sie ein E-Mail-Konto manuell an, oder wählen Sie &quot;Automatische Erkennung&quot;.</translation>
    </message>
    <message>
        <source>Specify the Instant Messenger to monitor manully or select &quot;Auto Recognition&quot;.</source>
        <translation>Geben Sie den zu überwachenden Instant Messenger manuell an, oder wählen Sie &quot;Automatische Erkennung&quot;.</translation>
    </message>
    <message>
        <source>Select the items to monitor. If you don&apos;t have items to monitor, disable &quot;Startup Program Monitoring&quot; option.</source>
        <translation>Wählen Sie die zu überwachenden Objekte aus. Wenn Sie keine Objekte überwachen möchten, deaktivieren Sie die Option &quot;Autostart-Überwachung&quot;.</translation>
    </message>
    <message>
        <source>Click [Set Spam Mail Prevention Rules] to set the spam mail prevention rules.
Or, disable &quot;Enables Spam Mail Filtering&quot; option.</source>
        <translation>Klicken Sie auf [Spam-Filterregeln festlegen], um die Regeln für den Spam-Filter festzulegen.
Oder deaktivieren Sie die Option &quot;Spam-Filter aktivieren&quot;.</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>No file exists.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Sender (E-Mail) setting is incorrect.</source>
        <translation>Die Angabe des Absenders (E-Mail) ist fehlerhaft.</translation>
    </message>
    <message>
        <source>SMTP Server setting is incorrect.</source>
        <translation>Die Angabe des SMTP-Servers ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Mail Server Port setting is incorrect.</source>
        <translation>Die Angabe des Mailserver-Ports ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Network drive (%s) is not connected.
Please check the network connection and try again.</source>
        <translation>Das Netzlaufwerk (%s) ist nicht verbunden.
Bitte prüfen Sie die Netzwerkverbindung, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>You have not selected possible harmful programs.
Please select possibly harmful programs to scan or deselect &quot;Scan possible harmful programs&quot; option.</source>
        <translation>Sie haben keine potenziell schädlichen Programme ausgewählt.
Bitte wählen Sie die zu prüfenden potenziell schädlichen Programme aus, oder deaktivieren Sie die Option &quot;Auf potenziell schädliche Programme prüfen&quot;.</translation>
    </message>
    <message>
        <source>This system does not support Instant Messenger Monitoring.</source>
        <translation>Dieses System unterstützt keine Instant-Messenger-Überwachung.</translation>
    </message>
    <message>
        <source>This system does not support Startup Program Monitoring.</source>
        <translation>Dieses System unterstützt keine Autostart-Überwachung.</translation>
    </message>
    <message>
        <source>You cannot leave this blank. Please type in a valid format. </source>
        <translation>Dieses Feld darf nicht leer sein. Bitte geben Sie ein gültiges Format ein. </translation>
    </message>
    <message>
        <source>Everyday %1</source>
        <translation>Täglich um %1</translation>
    </message>
    <message>
        <source>Every week %1 %2</source>
        <translation>Wöchentlich am %1 um %2</translation>
    </message>
    <message>
        <source>Every month %1day %2</source>
        <translation>Monatlich am %1. um %2</translation>
    </message>
    <message>
        <source>Local hard drives</source>
        <translation>Lokale Festplatten</translation>
    </message>
    <message>
        <source>MSN Instant Messenger (5.0 above)</source>
        <translation>MSN Instant Messenger (ab 5.0)</translation>
    </message>
    <message>
        <source>AOL Instant Messenger</source>
        <translation>AOL Instant Messenger</translation>
    </message>
    <message>
        <source>Yahoo! Instant Messenger</source>
        <translation>Yahoo! Instant Messenger</translation>
    </message>
    <message>
        <source>Windows Messenger</source>
        <translation>Windows Messenger</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Use or not</source>
        <translation>Verwendung</translation>
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
        <source>Daum Instant Messenger</source>
        <translation>Daum Instant Messenger</translation>
    </message>
    <message>
        <source>Auto Repair</source>
        <translation>Automatisch reparieren</translation>
    </message>
    <message>
        <source>Scan Compressed Files</source>
        <translation>Komprimierte Dateien prüfen</translation>
    </message>
    <message>
        <source>Back up files before repairing or deleting</source>
        <translation>Dateien vor dem Reparieren oder Löschen sichern</translation>
    </message>
    <message>
        <source>Repairable Files</source>
        <translation>Reparierbare Dateien</translation>
    </message>
    <message>
        <source>Unrepairable Files</source>
        <translation>Nicht reparierbare Dateien</translation>
    </message>
    <message>
        <source>Executing Files</source>
        <translation>Ausgeführte Dateien</translation>
    </message>
    <message>
        <source>Scan Setting</source>
        <translation>Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Repair Setting</source>
        <translation>Reparatureinstellungen</translation>
    </message>
    <message>
        <source>Real Time Monitoring</source>
        <translation>Echtzeitüberwachung</translation>
    </message>
    <message>
        <source>System Monitoring</source>
        <translation>Systemüberwachung</translation>
    </message>
    <message>
        <source>POP3 Monitoring</source>
        <translation>POP3-Überwachung</translation>
    </message>
    <message>
        <source>Outlook Monitoring</source>
        <translation>Outlook-Überwachung</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>(Exclude some items)</source>
        <translation>(mit Ausnahmen)</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Executable Files</source>
        <translation>Ausführbare Dateien</translation>
    </message>
    <message>
        <source>Macros</source>
        <translation>Makros</translation>
    </message>
    <message>
        <source>Script Files</source>
        <translation>Skriptdateien</translation>
    </message>
    <message>
        <source>Customized</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Infector Detection</source>
        <translation>Infektorerkennung</translation>
    </message>
    <message>
        <source>Auto-Restart System Monitoring</source>
        <translation>Automatischer Neustart der Systemüberwachung</translation>
    </message>
    <message>
        <source>Advanced Scan Setting</source>
        <translation>Erweiterte Prüfeinstellungen</translation>
    </message>
    <message>
        <source>Self Protect</source>
        <translation>Selbstschutz</translation>
    </message>
    <message>
        <source>Enables spam mail filtering</source>
        <translation>Spam-Filter aktiviert</translation>
    </message>
    <message>
        <source>Protection Level</source>
        <translation>Schutzstufe</translation>
    </message>
    <message>
        <source>Fully block virus intrusions</source>
        <translation>Vollständige Abwehr von Virenangriffen</translation>
    </message>
    <message>
        <source>Recommended for systems with high risk of virus infection</source>
        <translation>Empfohlen für Systeme mit hohem Infektionsrisiko</translation>
    </message>
    <message>
        <source>System performance can be affected</source>
        <translation>Die Systemleistung kann beeinträchtigt werden</translation>
    </message>
    <message>
        <source>Properly block virus intrusions</source>
        <translation>Angemessene Abwehr von Virenangriffen</translation>
    </message>
    <message>
        <source>Suggested for general user system</source>
        <translation>Empfohlen für die meisten Benutzersysteme</translation>
    </message>
    <message>
        <source>System performance can be slightly affected</source>
        <translation>Die Systemleistung kann geringfügig beeinträchtigt werden</translation>
    </message>
    <message>
        <source>Block virus intrusions at the lowest level</source>
        <translation>Abwehr von Virenangriffen auf niedrigster Stufe</translation>
    </message>
    <message>
        <source>Recommended for systems with low risk of virus infection</source>
        <translation>Empfohlen für Systeme mit geringem Infektionsrisiko</translation>
    </message>
    <message>
        <source>System performance is not affected</source>
        <translation>Die Systemleistung wird nicht beeinträchtigt</translation>
    </message>
    <message>
        <source>Block viruses according to configuration by function specified by the user</source>
        <translation>Virenabwehr nach den vom Benutzer festgelegten Einstellungen der einzelnen Funktionen</translation>
    </message>
    <message>
        <source>Use the menu at the left to change configuration by function</source>
        <translation>Über das Menü links können Sie die Einstellungen der einzelnen Funktionen ändern</translation>
    </message>
    <message>
        <source>Click [Next] to change configuration by function.</source>
        <translation>Klicken Sie auf [Weiter], um die Einstellungen der einzelnen Funktionen zu ändern.</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>Incorrect schedule interval</source>
        <translation>Ungültiges Zeitintervall</translation>
    </message>
    <message>
        <source>Please enter the file types not to scan.</source>
        <translation>Bitte geben Sie die nicht zu prüfenden Dateitypen ein.</translation>
    </message>
    <message>
        <source>You do not have permission to change the settings of the scheduled scan.</source>
        <translation>Sie sind nicht berechtigt, die Einstellungen der zeitgesteuerten Prüfung zu ändern.</translation>
    </message>
    <message>
        <source>Changes to POP3 port will not take effect until you restart the POP3 monitoring.</source>
        <translation>Änderungen am POP3-Port werden erst nach einem Neustart der POP3-Überwachung wirksam.</translation>
    </message>
    <message>
        <source>The number of words exceeds allowable length.
Please enter less than %d words.</source>
        <translation>Der Text überschreitet die zulässige Länge.
Bitte geben Sie weniger als %d Zeichen ein.</translation>
    </message>
    <message>
        <source>%d minutes %d seconds</source>
        <translation>%d Minuten %d Sekunden</translation>
    </message>
    <message>
        <source>%d minutes</source>
        <translation>%d Minuten</translation>
    </message>
    <message>
        <source>%d seconds</source>
        <translation>%d Sekunden</translation>
    </message>
    <message>
        <source>Alarm E-mail</source>
        <translation>Alarm-E-Mail</translation>
    </message>
    <message>
        <source>Setting E-Mail Account</source>
        <translation>E-Mail-Konto einrichten</translation>
    </message>
    <message>
        <source>Port Blocking</source>
        <translation>Portsperre</translation>
    </message>
    <message>
        <source>Block Network</source>
        <translation>Netzwerksperre</translation>
    </message>
    <message>
        <source>Edit Virus Alarm E-mail</source>
        <translation>Virenalarm-E-Mail bearbeiten</translation>
    </message>
    <message>
        <source>Edit Update Failure Notice E-mail</source>
        <translation>E-Mail bei fehlgeschlagenem Update bearbeiten</translation>
    </message>
    <message>
        <source>Edit System Monitoring Notice E-mail</source>
        <translation>E-Mail der Systemüberwachung bearbeiten</translation>
    </message>
    <message>
        <source>Recipient (E-Mail) setting is incorrect.</source>
        <translation>Die Angabe des Empfängers (E-Mail) ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Update Success E-mail Notice</source>
        <translation>E-Mail bei erfolgreichem Update</translation>
    </message>
    <message>
        <source>Computer Name : %S</source>
        <translation>Computername: %S</translation>
    </message>
    <message>
        <source>IP Address : %I</source>
        <translation>IP-Adresse: %I</translation>
    </message>
    <message>
        <source>Virus Count : %V</source>
        <translation>Anzahl Viren: %V</translation>
    </message>
    <message>
        <source>Set Time :%T</source>
        <translation>Zeitraum: %T</translation>
    </message>
    <message>
        <source>Computer Name : %C<byte value="xd"/>
IP : %I<byte value="xd"/>
Update completed successfully.</source>
        <translation>Computername: %C<byte value="xd"/>
IP: %I<byte value="xd"/>
Das Update wurde erfolgreich abgeschlossen.</translation>
    </message>
    <message>
        <source>Virus has been detected in your system.</source>
        <translation>Auf Ihrem System wurde ein Virus gefunden.</translation>
    </message>
    <message>
        <source>Virus Count:%V<byte value="xd"/>
Set Time:%T<byte value="xd"/>
Computer Name : %C<byte value="xd"/>
IP : %I<byte value="xd"/>
</source>
        <translation>Anzahl Viren: %V<byte value="xd"/>
Zeitraum: %T<byte value="xd"/>
Computername: %C<byte value="xd"/>
IP: %I<byte value="xd"/>
</translation>
    </message>
    <message>
        <source>Failed to run the Swift Update.</source>
        <translation>Das Swift Update konnte nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>Computer Name : %C<byte value="xd"/>
IP : %I</source>
        <translation>Computername: %C<byte value="xd"/>
IP: %I</translation>
    </message>
    <message>
        <source>Swift Update has been completed successfully.</source>
        <translation>Das Swift Update wurde erfolgreich abgeschlossen.</translation>
    </message>
    <message>
        <source>Auto-Restart System Monitoring function has been failed.</source>
        <translation>Der automatische Neustart der Systemüberwachung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Block Registered Ports Only(Permit other ports)</source>
        <translation>Nur registrierte Ports sperren (andere Ports zulassen)</translation>
    </message>
    <message>
        <source>Permit Registered Ports Only(Block other ports)</source>
        <translation>Nur registrierte Ports zulassen (andere Ports sperren)</translation>
    </message>
    <message>
        <source>Permit Inbound</source>
        <translation>Eingehend zulassen</translation>
    </message>
    <message>
        <source>Block Inbound</source>
        <translation>Eingehend sperren</translation>
    </message>
    <message>
        <source>Permit Outbound</source>
        <translation>Ausgehend zulassen</translation>
    </message>
    <message>
        <source>Block Outbound</source>
        <translation>Ausgehend sperren</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>Lokaler Port</translation>
    </message>
    <message>
        <source>Romote Port</source>
        <translation>Remote-Port</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>TCP,UDP</source>
        <translation>TCP,UDP</translation>
    </message>
    <message>
        <source>Block all network connections including the current network in use.
[Warning] System may encounter an error.</source>
        <translation>Alle Netzwerkverbindungen werden gesperrt, auch die derzeit verwendete.
[Warnung] Dabei können Systemfehler auftreten.</translation>
    </message>
    <message>
        <source>If Office Guard is selected, you may have to restart the system when files related to Office Guard are patched.
Do you want to select the Office Guard?</source>
        <translation>Wenn Office Guard ausgewählt ist, müssen Sie das System möglicherweise neu starten, sobald Dateien von Office Guard aktualisiert werden.
Möchten Sie Office Guard auswählen?</translation>
    </message>
    <message>
        <source>If Explorer Scan is selected, you may have to restart the system when files related to Explorer Scan are patched.
Do you want to select the Explorer Scan?</source>
        <translation>Wenn die Explorer-Prüfung ausgewählt ist, müssen Sie das System möglicherweise neu starten, sobald Dateien der Explorer-Prüfung aktualisiert werden.
Möchten Sie die Explorer-Prüfung auswählen?</translation>
    </message>
    <message>
        <source>Starting Port</source>
        <translation>Anfangsport</translation>
    </message>
    <message>
        <source>Ending Port</source>
        <translation>Endport</translation>
    </message>
    <message>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation>Porttyp</translation>
    </message>
    <message>
        <source>Access Permission</source>
        <translation>Zugriffsrecht</translation>
    </message>
    <message>
        <source>Validity Period</source>
        <translation>Gültigkeitsdauer</translation>
    </message>
    <message>
        <source>Starting Port Number should be smaller than Ending Port Number.</source>
        <translation>Die Nummer des Anfangsports muss kleiner als die des Endports sein.</translation>
    </message>
    <message>
        <source>Please select the Access Permission.</source>
        <translation>Bitte wählen Sie das Zugriffsrecht aus.</translation>
    </message>
    <message>
        <source>Please select the protocol.</source>
        <translation>Bitte wählen Sie das Protokoll aus.</translation>
    </message>
    <message>
        <source>Q9Pro 2004 Master</source>
        <translation>Q9Pro 2004 Master</translation>
    </message>
    <message>
        <source>Do you want to delete the selected items?</source>
        <translation>Möchten Sie die ausgewählten Einträge löschen?</translation>
    </message>
    <message>
        <source>Port Block Logs do not exist.</source>
        <translation>Es sind keine Portsperr-Protokolle vorhanden.</translation>
    </message>
    <message>
        <source>The port information has been modified.</source>
        <translation>Die Portangaben wurden geändert.</translation>
    </message>
    <message>
        <source>If you disable this option, all the alert messages from the tray icon cannot be viewed.</source>
        <translation>Wenn Sie diese Option deaktivieren, können keine Warnmeldungen über das Symbol in der Taskleiste angezeigt werden.</translation>
    </message>
    <message>
        <source>Ports List</source>
        <translation>Portliste</translation>
    </message>
    <message>
        <source>Please enter the value with more than 10 minutes.</source>
        <translation>Bitte geben Sie einen Wert von mindestens 10 Minuten ein.</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Arbeitsplatz</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Home Folder</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Test a path</source>
        <translation>Pfad prüfen</translation>
    </message>
    <message>
        <source>Which path should be tested?</source>
        <translation>Welcher Pfad soll geprüft werden?</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is excluded from scans by the folder &quot;%s&quot;.</source>
        <translation>&quot;%s&quot; wird durch den Ordner &quot;%s&quot; von Prüfungen ausgenommen.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is excluded from scans by the file &quot;%s&quot;.</source>
        <translation>&quot;%s&quot; wird durch die Datei &quot;%s&quot; von Prüfungen ausgenommen.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is excluded from scans by the extension &quot;%s&quot;.</source>
        <translation>&quot;%s&quot; wird durch die Erweiterung &quot;%s&quot; von Prüfungen ausgenommen.</translation>
    </message>
    <message>
        <source>This row belongs to this product.</source>
        <translation>Diese Zeile gehört zu diesem Produkt.</translation>
    </message>
    <message>
        <source>This row belongs to another product (%s).</source>
        <translation>Diese Zeile gehört zu einem anderen Produkt (%s).</translation>
    </message>
    <message>
        <source>It matched the network path &quot;%s&quot;.</source>
        <translation>Sie trifft über den Netzwerkpfad &quot;%s&quot; zu.</translation>
    </message>
    <message>
        <source>&quot;%s&quot; is not excluded from scans.</source>
        <translation>&quot;%s&quot; ist von keiner Prüfung ausgenommen.</translation>
    </message>
    <message>
        <source>The alert sound cannot be played: no sound device is available.</source>
        <translation>Der Warnton kann nicht abgespielt werden: Es ist kein Audiogerät verfügbar.</translation>
    </message>
    <message>
        <source>This file cannot be played as an alert sound.</source>
        <translation>Diese Datei kann nicht als Warnton abgespielt werden.</translation>
    </message>
    <message>
        <source>The settings could not be saved: the configuration file cannot be written or is damaged. Your changes are kept. Press OK to try again, or Cancel to discard them.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden: Die Konfigurationsdatei kann nicht geschrieben werden oder ist beschädigt. Ihre Änderungen bleiben erhalten. Klicken Sie auf OK, um es erneut zu versuchen, oder auf Abbrechen, um sie zu verwerfen.</translation>
    </message>
    <message>
        <source>These settings files cannot be read:

%s

They are left as they are. The settings they hold are shown with their default values, and changes to them cannot be saved until the files are repaired or removed.</source>
        <translation>Diese Einstellungsdateien können nicht gelesen werden:

%s

Sie bleiben unverändert. Ihre Einstellungen werden mit den Standardwerten angezeigt, und Änderungen daran können erst gespeichert werden, wenn die Dateien repariert oder entfernt sind.</translation>
    </message>
    <message>
        <source>Can&apos;t open link:

</source>
        <translation>Der Link kann nicht geöffnet werden:

</translation>
    </message>
    <message>
        <source>The operating system is out
of memory or resources.</source>
        <translation>Das Betriebssystem hat keinen Speicher
oder keine Ressourcen mehr.</translation>
    </message>
    <message>
        <source>The specified file was not found.</source>
        <translation>Die angegebene Datei wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The specified path was not found.</source>
        <translation>Der angegebene Pfad wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The operating system denied
access to the specified file.</source>
        <translation>Das Betriebssystem hat den Zugriff
auf die angegebene Datei verweigert.</translation>
    </message>
    <message>
        <source>There was not enough memory to complete the operation.</source>
        <translation>Für diesen Vorgang war nicht genügend Speicher vorhanden.</translation>
    </message>
    <message>
        <source>The .EXE file is invalid
(non-Win32 .EXE or error in .EXE image).</source>
        <translation>Die Programmdatei ist ungültig
(kein ausführbares Programm oder fehlerhaftes Abbild).</translation>
    </message>
    <message>
        <source>A sharing violation occurred. </source>
        <translation>Eine Freigabeverletzung ist aufgetreten. </translation>
    </message>
    <message>
        <source>The specified dynamic-link library was not found.</source>
        <translation>Die angegebene Programmbibliothek wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Unknown Error (%d) occurred.</source>
        <translation>Unbekannter Fehler (%d) aufgetreten.</translation>
    </message>
</context>
</TS>
