<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiAntennaConfigDialog_t</name>
    <message>
        <source>Setup ID must be 0 - </source>
        <translation>Setup-ID muss sein: 0 - </translation>
    </message>
    <message>
        <source>Slant Range must be </source>
        <translation>Schrägstrecke muss sein: </translation>
    </message>
    <message>
        <source>Radius must be </source>
        <translation>Radius muss sein: </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiAntennaIdentification_t</name>
    <message>
        <source>Configure</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>(Auto) </source>
        <translation>(Automatisch) </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiBasePositionDialog_t</name>
    <message>
        <source>Base Station Latitude</source>
        <translation>Breite der Basisstation</translation>
    </message>
    <message>
        <source>Base Station Longitude</source>
        <translation>Länge der Basisstation</translation>
    </message>
    <message>
        <source>Base Station Height</source>
        <translation>Höhe der Basisstation</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiCorrectionSatSelectDialog_t</name>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiCorrectionsReceiver_t</name>
    <message>
        <source>Wait for power</source>
        <translation>Warten auf Versorgung</translation>
    </message>
    <message>
        <source>Processing disabled</source>
        <translation>Verarbeitung abgeschaltet</translation>
    </message>
    <message>
        <source>Wait for AGC to settle</source>
        <translation>Warten auf AGC</translation>
    </message>
    <message>
        <source>Start of processing</source>
        <translation>Verarbeitung beginnt</translation>
    </message>
    <message>
        <source>Signal detection</source>
        <translation>Signalsuche</translation>
    </message>
    <message>
        <source>Signal detection failed</source>
        <translation>Signalsuche erfolglos</translation>
    </message>
    <message>
        <source>Frequency verify</source>
        <translation>Frequenzprüfung</translation>
    </message>
    <message>
        <source>Signal acquisition</source>
        <translation>Signalerfassung</translation>
    </message>
    <message>
        <source>AFC plus Costas pull-in</source>
        <translation>AFC und Costas-Einzug</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Eingerastet</translation>
    </message>
    <message>
        <source>VFFT</source>
        <translation>VFFT</translation>
    </message>
    <message>
        <source>Invalid MRV Almanac Auto-switch Time</source>
        <translation>Ungültige Zeit für den Wechsel des MRV-Almanachs</translation>
    </message>
    <message>
        <source>Invalid MRV Almanac Auto-switch Hours</source>
        <translation>Ungültige Stunden für den Wechsel des MRV-Almanachs</translation>
    </message>
    <message>
        <source>MRV Almanac Auto-switch Minutes must be 0 - 59</source>
        <translation>Minuten für den Wechsel des MRV-Almanachs müssen 0 - 59 sein</translation>
    </message>
    <message>
        <source>MRV Almanac Auto-switch Time must be &lt;= 24 hours</source>
        <translation>Zeit für den Wechsel des MRV-Almanachs muss &lt;= 24 Stunden sein</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiCustomSatDialog_t</name>
    <message>
        <source>Define Satellite</source>
        <translation>Satellit festlegen</translation>
    </message>
    <message>
        <source>Clear Satellite</source>
        <translation>Satellit löschen</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiDifferentialConfiguration_t</name>
    <message>
        <source>RTCM Site ID must be </source>
        <translation>RTCM-Standort-ID muss sein: </translation>
    </message>
    <message>
        <source>RTCM Station ID must be </source>
        <translation>RTCM-Stations-ID muss sein: </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiEthernetConfiguration_t</name>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;center&gt;&lt;b&gt;WARNING:&lt;/b&gt; Changing the ethernet settings will temporarily lose connection and cause the quality panel to blank.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;&lt;FONT COLOR=&apos;#800000&apos;&gt;&lt;b&gt;Do not make changes during critical operations.&lt;/b&gt;&lt;/FONT&gt;&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;Are you sure you want to make changes?&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(Press &lt;b&gt;Yes&lt;/b&gt; to continue, &lt;b&gt;No&lt;/b&gt; to cancel)&lt;/center&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;center&gt;&lt;b&gt;WARNUNG:&lt;/b&gt; Wer die Ethernet-Einstellungen ändert, verliert vorübergehend die Verbindung; die Qualitätsanzeige wird leer.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;&lt;FONT COLOR=&apos;#800000&apos;&gt;&lt;b&gt;Während wichtiger Arbeiten nichts ändern.&lt;/b&gt;&lt;/FONT&gt;&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;Wirklich ändern?&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(&lt;b&gt;Ja&lt;/b&gt; ändert, &lt;b&gt;Nein&lt;/b&gt; bricht ab)&lt;/center&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Change the ethernet settings?</source>
        <translation>Ethernet-Einstellungen ändern?</translation>
    </message>
    <message>
        <source>IP Address is invalid</source>
        <translation>IP-Adresse ist ungültig</translation>
    </message>
    <message>
        <source>Netmask must be a valid IP address</source>
        <translation>Netzmaske muss eine gültige IP-Adresse sein</translation>
    </message>
    <message>
        <source>Gateway must be a valid IP address</source>
        <translation>Gateway muss eine gültige IP-Adresse sein</translation>
    </message>
    <message>
        <source>DNS Server 1 must be a valid IP address</source>
        <translation>DNS-Server 1 muss eine gültige IP-Adresse sein</translation>
    </message>
    <message>
        <source>DNS Server 2 must be a valid IP address</source>
        <translation>DNS-Server 2 muss eine gültige IP-Adresse sein</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiExtendedNavInfo_t</name>
    <message>
        <source>WAAS</source>
        <translation>WAAS</translation>
    </message>
    <message>
        <source>WAAS Test Mode</source>
        <translation>WAAS-Testbetrieb</translation>
    </message>
    <message>
        <source>MRV (C1)</source>
        <translation>MRV (C1)</translation>
    </message>
    <message>
        <source>RTCM1</source>
        <translation>RTCM1</translation>
    </message>
    <message>
        <source>RTCM9</source>
        <translation>RTCM9</translation>
    </message>
    <message>
        <source>EGNOS</source>
        <translation>EGNOS</translation>
    </message>
    <message>
        <source>MSAS</source>
        <translation>MSAS</translation>
    </message>
    <message>
        <source>GAGAN</source>
        <translation>GAGAN</translation>
    </message>
    <message>
        <source>LEO</source>
        <translation>LEO</translation>
    </message>
    <message>
        <source>MRV (C3)</source>
        <translation>MRV (C3)</translation>
    </message>
    <message>
        <source>RTK 5B</source>
        <translation>RTK 5B</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Reserviert</translation>
    </message>
    <message>
        <source>RTCM 20/21</source>
        <translation>RTCM 20/21</translation>
    </message>
    <message>
        <source>CMR</source>
        <translation>CMR</translation>
    </message>
    <message>
        <source>CMR+</source>
        <translation>CMR+</translation>
    </message>
    <message>
        <source>RTCM3-L1 Compact</source>
        <translation>RTCM3-L1 kompakt</translation>
    </message>
    <message>
        <source>RTCM3-L1 Full</source>
        <translation>RTCM3-L1 voll</translation>
    </message>
    <message>
        <source>RTCM3-Dual Compact</source>
        <translation>RTCM3-Dual kompakt</translation>
    </message>
    <message>
        <source>RTCM3-Dual Full</source>
        <translation>RTCM3-Dual voll</translation>
    </message>
    <message>
        <source>RTCM3.2 MSM</source>
        <translation>RTCM3.2 MSM</translation>
    </message>
    <message>
        <source>RTK 62</source>
        <translation>RTK 62</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Navigation solution available</source>
        <translation>Navigationslösung vorhanden</translation>
    </message>
    <message>
        <source>Too few measurements for navigation init</source>
        <translation>Zu wenige Messungen für den Navigationsbeginn</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Initialisierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Navigation initialization completing</source>
        <translation>Navigationsbeginn wird abgeschlossen</translation>
    </message>
    <message>
        <source>Too few measurements for navigation</source>
        <translation>Zu wenige Messungen für die Navigation</translation>
    </message>
    <message>
        <source>Navigation PDOP too high</source>
        <translation>PDOP der Navigation zu hoch</translation>
    </message>
    <message>
        <source>No velocity solution</source>
        <translation>Keine Geschwindigkeitslösung</translation>
    </message>
    <message>
        <source>Navigation update too large</source>
        <translation>Navigationsschritt zu groß</translation>
    </message>
    <message>
        <source>Export height/velocity limits exceeded</source>
        <translation>Ausfuhrgrenzen für Höhe/Geschwindigkeit überschritten</translation>
    </message>
    <message>
        <source>Available navigation modes are disabled </source>
        <translation>Verfügbare Navigationsarten sind abgeschaltet </translation>
    </message>
    <message>
        <source>WGS84</source>
        <translation>WGS84</translation>
    </message>
    <message>
        <source>ITRF 2020</source>
        <translation>ITRF 2020</translation>
    </message>
    <message>
        <source>Non default</source>
        <translation>Abweichend</translation>
    </message>
    <message>
        <source>EGM84</source>
        <translation>EGM84</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiFirmwareSelector_t</name>
    <message>
        <source>MELVOX Firmware Files (*.%1);;All Files (*)</source>
        <translation>MELVOX-Firmwaredateien (*.%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open MELVOX Firmware</source>
        <translation>MELVOX-Firmware öffnen</translation>
    </message>
    <message>
        <source>Invalid Firmware Package</source>
        <translation>Ungültiges Firmwarepaket</translation>
    </message>
    <message>
        <source>The selected path does not appear to contain valid MELVOX firmware</source>
        <translation>Der gewählte Pfad enthält offenbar keine gültige MELVOX-Firmware</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiFirmwareUpdate_t</name>
    <message>
        <source>Select Package</source>
        <translation>Paket wählen</translation>
    </message>
    <message>
        <source>Toggle Component</source>
        <translation>Teil umschalten</translation>
    </message>
    <message>
        <source>Start Update</source>
        <translation>Update starten</translation>
    </message>
    <message>
        <source>Firmware Update Successful</source>
        <translation>Firmware-Update erfolgreich</translation>
    </message>
    <message>
        <source>Firmware update complete.  Press OK to power cycle the receiver</source>
        <translation>Firmware-Update abgeschlossen.  OK startet den Empfänger neu</translation>
    </message>
    <message>
        <source>Firmware Update Failed</source>
        <translation>Firmware-Update fehlgeschlagen</translation>
    </message>
    <message>
        <source>Update of one or more firmware components failed.  Press OK to power cycle the receiver then retry.</source>
        <translation>Mindestens ein Firmwareteil konnte nicht erneuert werden.  OK startet den Empfänger neu; danach erneut versuchen.</translation>
    </message>
    <message>
        <source>Firmware updates must be performed over the receiver&apos;s serial, USB, or TCP interfaces.</source>
        <translation>Firmware-Updates gehen nur über die serielle, die USB- oder die TCP-Schnittstelle des Empfängers.</translation>
    </message>
    <message>
        <source>Firmware update in progress.  Do not turn off the receiver or unplug the USB device.</source>
        <translation>Firmware-Update läuft.  Empfänger nicht ausschalten und USB-Gerät nicht abziehen.</translation>
    </message>
    <message>
        <source>Unable to lock port</source>
        <translation>Port lässt sich nicht sperren</translation>
    </message>
    <message>
        <source>Firmware update complete.  Cycle power to the receiver.</source>
        <translation>Firmware-Update abgeschlossen.  Empfänger aus- und wieder einschalten.</translation>
    </message>
    <message>
        <source>Update of one or more firmware components failed.  Cycle power to the receiver and retry.</source>
        <translation>Mindestens ein Firmwareteil konnte nicht erneuert werden.  Empfänger aus- und wieder einschalten und erneut versuchen.</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiNavigationMode_t</name>
    <message>
        <source>Velocity smoothing setting must be specified</source>
        <translation>Für die Geschwindigkeitsglättung muss etwas gewählt sein</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiOutputMessages_t</name>
    <message>
        <source>Custom Interval</source>
        <translation>Eigenes Intervall</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Abgeschaltet</translation>
    </message>
    <message>
        <source>Interval </source>
        <translation>Intervall </translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Abschalten</translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation>Alle abschalten</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Confirm Disable MELVOX Output Message</source>
        <translation>Abschalten der MELVOX-Meldung bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to disable output of this message?</source>
        <translation>Ausgabe dieser Meldung wirklich abschalten?</translation>
    </message>
    <message>
        <source>Confirm Disable MELVOX Output Messages</source>
        <translation>Abschalten der MELVOX-Meldungen bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to disable output of all messages on this port?</source>
        <translation>Ausgabe aller Meldungen auf diesem Port wirklich abschalten?</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiPhysicalPortConfigDialog_t</name>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
    <message>
        <source>RS-422</source>
        <translation>RS-422</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiPortConfiguration_t</name>
    <message>
        <source>Telvar</source>
        <translation>Telvar</translation>
    </message>
    <message>
        <source>Auxiliary</source>
        <translation>Zusatz</translation>
    </message>
    <message>
        <source>RS-232</source>
        <translation>RS-232</translation>
    </message>
    <message>
        <source>RS-422</source>
        <translation>RS-422</translation>
    </message>
    <message>
        <source>UDP (Restrict)</source>
        <translation>UDP (beschränkt)</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>Physical</source>
        <translation>Physisch</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtuell</translation>
    </message>
    <message>
        <source>Configure Port</source>
        <translation>Port einrichten</translation>
    </message>
    <message>
        <source>The MELVOX is connected at a baud rate (%1) below the recommended minimum (%2).
Attempting to change the baud rate to the recommended minimum.
In the event the baud rate remains unchanged, please connect again directly at the current baud rate %1.</source>
        <translation>Der MELVOX ist mit einer Baudrate (%1) unter dem empfohlenen Mindestwert (%2) verbunden.
Die Baudrate wird jetzt auf den empfohlenen Mindestwert gestellt.
Bleibt sie unverändert, bitte unmittelbar mit der derzeitigen Baudrate %1 neu verbinden.</translation>
    </message>
    <message>
        <source>Invalid MELVOX Baud Rate</source>
        <translation>Ungültige MELVOX-Baudrate</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiPpsConfiguration_t</name>
    <message>
        <source>Pulse width must be 0 - </source>
        <translation>Pulsbreite muss sein: 0 - </translation>
    </message>
    <message>
        <source>Interval must be </source>
        <translation>Intervall muss sein: </translation>
    </message>
    <message>
        <source>Signal delay must be 0 - </source>
        <translation>Signalverzögerung muss sein: 0 - </translation>
    </message>
    <message>
        <source>Chip delay must be 0 - </source>
        <translation>Chipverzögerung muss sein: 0 - </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiProfileDumper_t</name>
    <message>
        <source>Save Melvox Profile</source>
        <translation>Melvox-Profil speichern</translation>
    </message>
    <message>
        <source>Melvox Profile (*.dravel);;All Files (*)</source>
        <translation>Melvox-Profil (*.dravel);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source> on </source>
        <translation> auf </translation>
    </message>
    <message>
        <source>Dumping...</source>
        <translation>Sichern ...</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiProfileLoader_t</name>
    <message>
        <source>Cancel Load</source>
        <translation>Laden abbrechen</translation>
    </message>
    <message>
        <source>Open MELVOX Profile</source>
        <translation>MELVOX-Profil öffnen</translation>
    </message>
    <message>
        <source>MELVOX Profile (*.melvox);;All Files (*)</source>
        <translation>MELVOX-Profil (*.melvox);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Locking port</source>
        <translation>Port wird gesperrt</translation>
    </message>
    <message>
        <source>Unable to lock port</source>
        <translation>Port lässt sich nicht sperren</translation>
    </message>
    <message>
        <source>Loading data (%1/%2)</source>
        <translation>Daten werden geladen (%1/%2)</translation>
    </message>
    <message>
        <source>Load Complete</source>
        <translation>Laden abgeschlossen</translation>
    </message>
    <message>
        <source>Error reading from file</source>
        <translation>Fehler beim Lesen der Datei</translation>
    </message>
    <message>
        <source>Error writing to port</source>
        <translation>Fehler beim Schreiben auf den Port</translation>
    </message>
    <message>
        <source>Error: port is not open</source>
        <translation>Fehler: Port ist nicht offen</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <translation>Übertragung abgebrochen</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiReceiverInformation_t</name>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Toggle the LTE modem?</source>
        <translation>LTE-Modem umschalten?</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;center&gt;You must have confirmation from Brel Support that this function is operational on this receiver.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;LTE is &lt;b&gt;ONLY&lt;/b&gt; used for remote diagnostic purposes.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(Press &lt;b&gt;Yes&lt;/b&gt; to toggle, &lt;b&gt;No&lt;/b&gt; to cancel)&lt;/center&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;center&gt;Der Brel-Support muss bestätigt haben, dass diese Funktion auf diesem Empfänger arbeitet.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;LTE dient &lt;b&gt;NUR&lt;/b&gt; der Ferndiagnose.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(&lt;b&gt;Ja&lt;/b&gt; schaltet um, &lt;b&gt;Nein&lt;/b&gt; bricht ab)&lt;/center&gt;&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiRtkConfiguration_t</name>
    <message>
        <source>User angle must be 0 - </source>
        <translation>Eigener Winkel muss sein: 0 - </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiSettingsProfiles_t</name>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>Set Active</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Confirm Delete Melvox Profile</source>
        <translation>Löschen des Melvox-Profils bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected profile?</source>
        <translation>Das gewählte Profil wirklich löschen?</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiSolutionControl_t</name>
    <message>
        <source>Elevation mask must be </source>
        <translation>Elevationsmaske muss sein: </translation>
    </message>
    <message>
        <source>PDOP limit must be </source>
        <translation>PDOP-Grenze muss sein: </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiUsbFirmwareSelectDialog_t</name>
    <message>
        <source>Stop Scan</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Select Package</source>
        <translation>Paket wählen</translation>
    </message>
    <message>
        <source>%1 firmware package(s) found</source>
        <translation>%1 Firmwarepaket(e) gefunden</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiUsbProfileListDialog_t</name>
    <message>
        <source>Stop Scan</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Load Profile</source>
        <translation>Profil laden</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiUsbWebUiSelectDialog_t</name>
    <message>
        <source>Stop Scan</source>
        <translation>Suche anhalten</translation>
    </message>
    <message>
        <source>Select Package</source>
        <translation>Paket wählen</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiVirtualPortConfigDialog_t</name>
    <message>
        <source>Remote Address must be a valid IP address</source>
        <translation>Gegenadresse muss eine gültige IP-Adresse sein</translation>
    </message>
    <message>
        <source>Remote Port must be 0 - 65535</source>
        <translation>Gegenport muss 0 - 65535 sein</translation>
    </message>
    <message>
        <source>Local Port must be 0 - 65535</source>
        <translation>Eigener Port muss 0 - 65535 sein</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiWebInterface_t</name>
    <message>
        <source>Query</source>
        <translation>Abfragen</translation>
    </message>
    <message>
        <source>MELVOX Web UI Packages (*.%1);;All Files (*)</source>
        <translation>MELVOX-Webpakete (*.%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open MELVOX Web UI Package</source>
        <translation>MELVOX-Webpaket öffnen</translation>
    </message>
    <message>
        <source>Upload Complete</source>
        <translation>Übertragung abgeschlossen</translation>
    </message>
</context>
<context>
    <name>melvoxUiAntennaConfigDialog</name>
    <message>
        <source>MELVOX Virtual Port Configuration</source>
        <translation>Virtueller Port des MELVOX</translation>
    </message>
    <message>
        <source>Antenna:</source>
        <translation>Antenne:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Antenna Identification</source>
        <translation>Antennenkennung</translation>
    </message>
    <message>
        <source>IGS Antenna:</source>
        <translation>IGS-Antenne:</translation>
    </message>
    <message>
        <source>IGS Antenna</source>
        <translation>IGS-Antenne</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>Antenna Serial Number</source>
        <translation>Seriennummer der Antenne</translation>
    </message>
    <message>
        <source>Setup ID:</source>
        <translation>Setup-ID:</translation>
    </message>
    <message>
        <source>Antenna Setup ID</source>
        <translation>Setup-ID der Antenne</translation>
    </message>
    <message>
        <source>Antenna Adjustments</source>
        <translation>Antennenkorrekturen</translation>
    </message>
    <message>
        <source>Use Adjustments:</source>
        <translation>Korrekturen nutzen:</translation>
    </message>
    <message>
        <source>Use Adjustments</source>
        <translation>Korrekturen nutzen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Slant Range (mm):</source>
        <translation>Schrägstrecke (mm):</translation>
    </message>
    <message>
        <source>Slant Range Sign</source>
        <translation>Vorzeichen der Schrägstrecke</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Antenna Slant Range</source>
        <translation>Schrägstrecke der Antenne</translation>
    </message>
    <message>
        <source>Radius (mm):</source>
        <translation>Radius (mm):</translation>
    </message>
    <message>
        <source>Radius Sign</source>
        <translation>Vorzeichen des Radius</translation>
    </message>
    <message>
        <source>Antenna Radius</source>
        <translation>Radius der Antenne</translation>
    </message>
</context>
<context>
    <name>melvoxUiAntennaIdentification</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation>Antennen</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>IGS Antenna Name</source>
        <translation>IGS-Antennenname</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Setup ID</source>
        <translation>Setup-ID</translation>
    </message>
    <message>
        <source>Use Adjustments</source>
        <translation>Korrekturen nutzen</translation>
    </message>
    <message>
        <source>Slant Range (mm)</source>
        <translation>Schrägstrecke (mm)</translation>
    </message>
    <message>
        <source>Radius (mm)</source>
        <translation>Radius (mm)</translation>
    </message>
    <message>
        <source>Base Station Antenna Identification</source>
        <translation>Antennenkennung der Basisstation</translation>
    </message>
    <message>
        <source>IGS Antenna:</source>
        <translation>IGS-Antenne:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>IGS Antenna</source>
        <translation>IGS-Antenne</translation>
    </message>
    <message>
        <source>Dual Antenna Mode</source>
        <translation>Doppelantennenbetrieb</translation>
    </message>
    <message>
        <source>Dual Antenna Mode:</source>
        <translation>Doppelantennenbetrieb:</translation>
    </message>
</context>
<context>
    <name>melvoxUiBasePositionDialog</name>
    <message>
        <source>MELVOX Base Station Position</source>
        <translation>Position der MELVOX-Basisstation</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Base Station Latitude</source>
        <translation>Breite der Basisstation</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Base Station Longitude</source>
        <translation>Länge der Basisstation</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Base Station Height</source>
        <translation>Höhe der Basisstation</translation>
    </message>
</context>
<context>
    <name>melvoxUiCorrectionSatSelectDialog</name>
    <message>
        <source>MELVOX Corrections Satellite</source>
        <translation>MELVOX-Korrektursatellit</translation>
    </message>
    <message>
        <source>Satellite Selection</source>
        <translation>Satellitenwahl</translation>
    </message>
    <message>
        <source>Auto-Select:</source>
        <translation>Automatisch:</translation>
    </message>
    <message>
        <source>Auto-Select</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Correction Satellites</source>
        <translation>Korrektursatelliten</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Look Angle</source>
        <translation>Blickwinkel</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Merkmale</translation>
    </message>
</context>
<context>
    <name>melvoxUiCorrectionsReceiver</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Satellite Selection</source>
        <translation>Satellitenwahl</translation>
    </message>
    <message>
        <source>Current Selection:</source>
        <translation>Derzeitige Wahl:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Auto-Select:</source>
        <translation>Automatisch:</translation>
    </message>
    <message>
        <source>Correction Selection:</source>
        <translation>Korrekturwahl:</translation>
    </message>
    <message>
        <source>Correction Selection</source>
        <translation>Korrekturwahl</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Zweitwahl</translation>
    </message>
    <message>
        <source>Select Satellite</source>
        <translation>Satellit wählen</translation>
    </message>
    <message>
        <source>MRV Almanac</source>
        <translation>MRV-Almanach</translation>
    </message>
    <message>
        <source>MRV Almanac Updated:</source>
        <translation>MRV-Almanach vom:</translation>
    </message>
    <message>
        <source>New Almanac Available:</source>
        <translation>Neuer Almanach:</translation>
    </message>
    <message>
        <source>Switch to New Almanac</source>
        <translation>Neuen Almanach nutzen</translation>
    </message>
    <message>
        <source>Switch Policy:</source>
        <translation>Wechsel:</translation>
    </message>
    <message>
        <source>Switch Policy</source>
        <translation>Wechsel</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Auto-switch After(HH:MM):</source>
        <translation>Nach (HH:MM):</translation>
    </message>
    <message>
        <source>MRV Almanac Auto-switch Time</source>
        <translation>Zeit für den Wechsel des MRV-Almanachs</translation>
    </message>
    <message>
        <source>Downlink Status</source>
        <translation>Empfangszustand</translation>
    </message>
    <message>
        <source>MRV Satellite</source>
        <translation>MRV-Satellit</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Signal Status</source>
        <translation>Signalzustand</translation>
    </message>
    <message>
        <source>SNR</source>
        <translation>SNR</translation>
    </message>
    <message>
        <source>AGC Voltage (V)</source>
        <translation>AGC-Spannung (V)</translation>
    </message>
    <message>
        <source>Packets % Idle</source>
        <translation>Pakete % leer</translation>
    </message>
    <message>
        <source>Packets % Bad</source>
        <translation>Pakete % schlecht</translation>
    </message>
    <message>
        <source>Resync Count</source>
        <translation>Resyncs</translation>
    </message>
</context>
<context>
    <name>melvoxUiCustomSatDialog</name>
    <message>
        <source>MELVOX Custom Satellite</source>
        <translation>Eigener MELVOX-Satellit</translation>
    </message>
    <message>
        <source>ID:</source>
        <translation>ID:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Custom Satellite ID</source>
        <translation>ID des eigenen Satelliten</translation>
    </message>
    <message>
        <source>Frequency (MHz):</source>
        <translation>Frequenz (MHz):</translation>
    </message>
    <message>
        <source>Custom Satellite Frequency</source>
        <translation>Frequenz des eigenen Satelliten</translation>
    </message>
</context>
<context>
    <name>melvoxUiDifferentialConfiguration</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>RTCM Configuration</source>
        <translation>RTCM-Einstellungen</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Betrieb:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Rover - RTCM</source>
        <translation>Rover - RTCM</translation>
    </message>
    <message>
        <source>Base - RTCM2.3 (1 &amp; 31)</source>
        <translation>Basis - RTCM2.3 (1 &amp; 31)</translation>
    </message>
    <message>
        <source>Base - RTCM2.3 (9 &amp; 34)</source>
        <translation>Basis - RTCM2.3 (9 &amp; 34)</translation>
    </message>
    <message>
        <source>Input Version:</source>
        <translation>Eingangsversion:</translation>
    </message>
    <message>
        <source>Input Version</source>
        <translation>Eingangsversion</translation>
    </message>
    <message>
        <source>3.2</source>
        <translation>3.2</translation>
    </message>
    <message>
        <source>2.3</source>
        <translation>2.3</translation>
    </message>
    <message>
        <source>Base Output Port:</source>
        <translation>Ausgabeport der Basis:</translation>
    </message>
    <message>
        <source>Base Output Port</source>
        <translation>Ausgabeport der Basis</translation>
    </message>
    <message>
        <source>Station/Site ID:</source>
        <translation>Stations-/Standort-ID:</translation>
    </message>
    <message>
        <source>Station/Site ID</source>
        <translation>Stations-/Standort-ID</translation>
    </message>
    <message>
        <source>Dynamic Mode:</source>
        <translation>Bewegung:</translation>
    </message>
    <message>
        <source>Dynamic Mode</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Ruhend</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Bewegt</translation>
    </message>
    <message>
        <source>Base Station</source>
        <translation>Basisstation</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Base Station Name</source>
        <translation>Name der Basisstation</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Einrichten</translation>
    </message>
</context>
<context>
    <name>melvoxUiDtmWarnDialog</name>
    <message>
        <source>MELVOX NMEA Output Warning</source>
        <translation>MELVOX-Warnung zur NMEA-Ausgabe</translation>
    </message>
    <message>
        <source>You have modified the settings of a NMEA message that can automatically enable output of the DTM or PZLQDTM NMEA messages.  These messages may be disabled manually from the Output Configuration screen.

Please see the help page to understand the effects of modifying the output of these messages.
</source>
        <translation>Sie haben eine NMEA-Meldung geändert, die von selbst die Ausgabe der NMEA-Meldungen DTM oder PZLQDTM einschalten kann.  Diese lassen sich auf der Ausgabeseite von Hand abschalten.

Was es bewirkt, die Ausgabe dieser Meldungen zu ändern, steht auf der Hilfeseite.
</translation>
    </message>
    <message>
        <source>Do not show this warning again</source>
        <translation>Diese Warnung nicht mehr zeigen</translation>
    </message>
</context>
<context>
    <name>melvoxUiEthernetConfiguration</name>
    <message>
        <source>Ethernet Configuration</source>
        <translation>Ethernet-Einstellungen</translation>
    </message>
    <message>
        <source>IP Address Configuration</source>
        <translation>Einstellung der IP-Adresse</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Betrieb:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>IP-Adresse:</translation>
    </message>
    <message>
        <source>Ethernet Interface IP Address</source>
        <translation>IP-Adresse der Ethernet-Schnittstelle</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Netzmaske:</translation>
    </message>
    <message>
        <source>Ethernet Interface Netmask</source>
        <translation>Netzmaske der Ethernet-Schnittstelle</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Ethernet Interface Gateway</source>
        <translation>Gateway der Ethernet-Schnittstelle</translation>
    </message>
    <message>
        <source>DNS Server 1:</source>
        <translation>DNS-Server 1:</translation>
    </message>
    <message>
        <source>Ethernet Interface DNS Server 1</source>
        <translation>DNS-Server 1 der Ethernet-Schnittstelle</translation>
    </message>
    <message>
        <source>DNS Server 2:</source>
        <translation>DNS-Server 2:</translation>
    </message>
    <message>
        <source>Ethernet Interface DNS Server 2</source>
        <translation>DNS-Server 2 der Ethernet-Schnittstelle</translation>
    </message>
    <message>
        <source>WiFi Configuration</source>
        <translation>WLAN-Einstellungen</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Zustand:</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Rolle:</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Band:</source>
        <translation>Band:</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Band</translation>
    </message>
    <message>
        <source>Access Point Configuration</source>
        <translation>Einstellungen des Zugangspunkts</translation>
    </message>
    <message>
        <source>Security:</source>
        <translation>Sicherheit:</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Passkey:</source>
        <translation>Schlüssel:</translation>
    </message>
    <message>
        <source>WiFi Passkey</source>
        <translation>WLAN-Schlüssel</translation>
    </message>
    <message>
        <source>WiFi Access Points</source>
        <translation>WLAN-Zugangspunkte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>RSS %</source>
        <translation>RSS %</translation>
    </message>
    <message>
        <source>Connected?</source>
        <translation>Verbunden?</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>melvoxUiExtendedNavInfo</name>
    <message>
        <source>Extended Navigation Info</source>
        <translation>Weitere Navigationsangaben</translation>
    </message>
    <message>
        <source>Navigation Summary</source>
        <translation>Navigationsübersicht</translation>
    </message>
    <message>
        <source>GPS Week:</source>
        <translation>GPS-Woche:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>GPS Time:</source>
        <translation>GPS-Zeit:</translation>
    </message>
    <message>
        <source>Nav Valid:</source>
        <translation>Navigation gültig:</translation>
    </message>
    <message>
        <source>Station ID:</source>
        <translation>Stations-ID:</translation>
    </message>
    <message>
        <source>Datum:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Source Type:</source>
        <translation>Quelle:</translation>
    </message>
    <message>
        <source>Failure Code:</source>
        <translation>Fehlercode:</translation>
    </message>
    <message>
        <source>Solid Earth Tide</source>
        <translation>Erdgezeiten</translation>
    </message>
    <message>
        <source>Delta North (mm):</source>
        <translation>Nordversatz (mm):</translation>
    </message>
    <message>
        <source>Delta East (mm):</source>
        <translation>Ostversatz (mm):</translation>
    </message>
    <message>
        <source>Delta Up (mm):</source>
        <translation>Höhenversatz (mm):</translation>
    </message>
    <message>
        <source>Error Estimates Std Deviation</source>
        <translation>Fehler, Standardabweichung</translation>
    </message>
    <message>
        <source>Latitude (m):</source>
        <translation>Breite (m):</translation>
    </message>
    <message>
        <source>Longitude (m):</source>
        <translation>Länge (m):</translation>
    </message>
    <message>
        <source>Height (m):</source>
        <translation>Höhe (m):</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>North (m/s):</source>
        <translation>Nord (m/s):</translation>
    </message>
    <message>
        <source>East (m/s):</source>
        <translation>Ost (m/s):</translation>
    </message>
    <message>
        <source>Up (m/s):</source>
        <translation>Auf (m/s):</translation>
    </message>
</context>
<context>
    <name>melvoxUiFirmwareUpdate</name>
    <message>
        <source>Firmware Update</source>
        <translation>Firmware-Update</translation>
    </message>
    <message>
        <source>Melvox Firmware Update</source>
        <translation>Melvox-Firmware-Update</translation>
    </message>
    <message>
        <source>Selected Package:</source>
        <translation>Gewähltes Paket:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keines)</translation>
    </message>
    <message>
        <source>Firmware Package</source>
        <translation>Firmwarepaket</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Update?</source>
        <translation>Erneuern?</translation>
    </message>
    <message>
        <source>Current Versions</source>
        <translation>Derzeitige Versionen</translation>
    </message>
    <message>
        <source>Update Status</source>
        <translation>Stand des Updates</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Update Progress</source>
        <translation>Fortschritt des Updates</translation>
    </message>
    <message>
        <source>0.00%</source>
        <translation>0.00%</translation>
    </message>
</context>
<context>
    <name>melvoxUiNavigationMode</name>
    <message>
        <source>Navigation Mode</source>
        <translation>Navigationsart</translation>
    </message>
    <message>
        <source>Navigation Measurement Use</source>
        <translation>Genutzte Messungen</translation>
    </message>
    <message>
        <source>GPS</source>
        <translation>GPS</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>GPS Use</source>
        <translation>GPS nutzen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>GLONASS</source>
        <translation>GLONASS</translation>
    </message>
    <message>
        <source>GLONASS Use</source>
        <translation>GLONASS nutzen</translation>
    </message>
    <message>
        <source>Galileo</source>
        <translation>Galileo</translation>
    </message>
    <message>
        <source>Galileo Use</source>
        <translation>Galileo nutzen</translation>
    </message>
    <message>
        <source>Beidou</source>
        <translation>Beidou</translation>
    </message>
    <message>
        <source>Beidou Use</source>
        <translation>Beidou nutzen</translation>
    </message>
    <message>
        <source>Dynamic Mode</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>Overall Mode:</source>
        <translation>Bewegungsart:</translation>
    </message>
    <message>
        <source>Overall Mode</source>
        <translation>Bewegungsart</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Ruhend</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Gering</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Velocity Smoothing:</source>
        <translation>Geschwindigkeitsglättung:</translation>
    </message>
    <message>
        <source>Velocity Smoothing</source>
        <translation>Geschwindigkeitsglättung</translation>
    </message>
</context>
<context>
    <name>melvoxUiOutputMessages</name>
    <message>
        <source>Output Messages</source>
        <translation>Ausgabemeldungen</translation>
    </message>
    <message>
        <source>Messages For Port:</source>
        <translation>Meldungen für Port:</translation>
    </message>
    <message>
        <source>Messages For Port</source>
        <translation>Meldungen für Port</translation>
    </message>
    <message>
        <source>Warning: Control Port Selected</source>
        <translation>Warnung: Steuerport gewählt</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Output Type</source>
        <translation>Ausgabeart</translation>
    </message>
    <message>
        <source>Port Usage</source>
        <translation>Portauslastung</translation>
    </message>
    <message>
        <source>Tx:</source>
        <translation>Senden:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Rx:</source>
        <translation>Empfangen:</translation>
    </message>
    <message>
        <source>Message Settings</source>
        <translation>Einstellung der Meldung</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Meldung:</translation>
    </message>
    <message>
        <source>Method:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Abgeschaltet</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Rate (Hz):</source>
        <translation>Rate (Hz):</translation>
    </message>
    <message>
        <source>Rate (Hz)</source>
        <translation>Rate (Hz)</translation>
    </message>
    <message>
        <source>or Interval (sec):</source>
        <translation>oder Intervall (s):</translation>
    </message>
    <message>
        <source>Interval (sec)</source>
        <translation>Intervall (s)</translation>
    </message>
    <message>
        <source>Output Settings for All Ports</source>
        <translation>Ausgabeeinstellungen für alle Ports</translation>
    </message>
    <message>
        <source>GGA Precision:</source>
        <translation>GGA-Genauigkeit:</translation>
    </message>
    <message>
        <source>GGA Precision</source>
        <translation>GGA-Genauigkeit</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Force NMEA Talker ID:</source>
        <translation>NMEA-Kennung erzwingen:</translation>
    </message>
    <message>
        <source>Force NMEA Talker ID</source>
        <translation>NMEA-Kennung erzwingen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>GP</source>
        <translation>GP</translation>
    </message>
    <message>
        <source>MRV GGA Quality:</source>
        <translation>MRV-GGA-Güte:</translation>
    </message>
    <message>
        <source>MRV GGA Quality</source>
        <translation>MRV-GGA-Güte</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>NMEA GGA Correction Age Scaling:</source>
        <translation>Skalierung des NMEA-GGA-Korrekturalters:</translation>
    </message>
    <message>
        <source>NMEA GGA Correction Age Scaling</source>
        <translation>Skalierung des NMEA-GGA-Korrekturalters</translation>
    </message>
    <message>
        <source>Unscaled</source>
        <translation>Unskaliert</translation>
    </message>
    <message>
        <source>Scaled (/10)</source>
        <translation>Skaliert (/10)</translation>
    </message>
    <message>
        <source>Scaled (/60)</source>
        <translation>Skaliert (/60)</translation>
    </message>
    <message>
        <source>NMEA Standard Version:</source>
        <translation>Version des NMEA-Standards:</translation>
    </message>
    <message>
        <source>4.10</source>
        <translation>4.10</translation>
    </message>
</context>
<context>
    <name>melvoxUiPhysicalPortConfigDialog</name>
    <message>
        <source>MELVOX Physical Port Configuration</source>
        <translation>Physischer Port des MELVOX</translation>
    </message>
    <message>
        <source>Configure Physical Port</source>
        <translation>Physischen Port einrichten</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Baud Rate:</source>
        <translation>Baudrate:</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>Data Bits:</source>
        <translation>Datenbits:</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>Parity:</source>
        <translation>Parität:</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parität</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Stop Bits:</source>
        <translation>Stoppbits:</translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation>Stoppbits</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Serial Mode:</source>
        <translation>Serielle Art:</translation>
    </message>
</context>
<context>
    <name>melvoxUiPortConfiguration</name>
    <message>
        <source>Port Configuration</source>
        <translation>Porteinstellungen</translation>
    </message>
    <message>
        <source>Port Settings</source>
        <translation>Ports</translation>
    </message>
    <message>
        <source>USB Mode:</source>
        <translation>USB-Betrieb:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>USB Mode</source>
        <translation>USB-Betrieb</translation>
    </message>
    <message>
        <source>Serial Port</source>
        <translation>Serieller Port</translation>
    </message>
    <message>
        <source>Mass Storage</source>
        <translation>Massenspeicher</translation>
    </message>
    <message>
        <source>Serial Port Configuration</source>
        <translation>Einstellung der seriellen Ports</translation>
    </message>
    <message>
        <source>Serial Ports</source>
        <translation>Serielle Ports</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parität</translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation>Stoppbits</translation>
    </message>
    <message>
        <source>Serial Mode</source>
        <translation>Serielle Art</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Ethernet Virtual Ports</source>
        <translation>Virtuelle Ethernet-Ports</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Remote Address</source>
        <translation>Gegenadresse</translation>
    </message>
    <message>
        <source>Remote Port</source>
        <translation>Gegenport</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>Eigener Port</translation>
    </message>
</context>
<context>
    <name>melvoxUiPpsConfiguration</name>
    <message>
        <source>1PPS Settings</source>
        <translation>1PPS-Einstellungen</translation>
    </message>
    <message>
        <source>1PPS</source>
        <translation>1PPS</translation>
    </message>
    <message>
        <source>Polarity:</source>
        <translation>Polarität:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>1PPS Polarity</source>
        <translation>1PPS-Polarität</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Positive</source>
        <translation>Positiv</translation>
    </message>
    <message>
        <source>Pulse and Delays</source>
        <translation>Puls und Verzögerungen</translation>
    </message>
    <message>
        <source>Pulse Width (ns):</source>
        <translation>Pulsbreite (ns):</translation>
    </message>
    <message>
        <source>1PPS Pulse Width</source>
        <translation>1PPS-Pulsbreite</translation>
    </message>
    <message>
        <source>Interval (ms):</source>
        <translation>Intervall (ms):</translation>
    </message>
    <message>
        <source>1PPS Interval</source>
        <translation>1PPS-Intervall</translation>
    </message>
    <message>
        <source>Signal Delay (ms):</source>
        <translation>Signalverzögerung (ms):</translation>
    </message>
    <message>
        <source>1PPS Signal Delay</source>
        <translation>1PPS-Signalverzögerung</translation>
    </message>
    <message>
        <source>Chip Delay (ns):</source>
        <translation>Chipverzögerung (ns):</translation>
    </message>
    <message>
        <source>1PPS Chip Delay</source>
        <translation>1PPS-Chipverzögerung</translation>
    </message>
</context>
<context>
    <name>melvoxUiProfileDumpDialog</name>
    <message>
        <source>Dump MELVOX Settings to File</source>
        <translation>MELVOX-Einstellungen in Datei sichern</translation>
    </message>
    <message>
        <source>Dumping to:</source>
        <translation>Sichern nach:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stand:</translation>
    </message>
</context>
<context>
    <name>melvoxUiProfileLoadDialog</name>
    <message>
        <source>Load MELVOX Profile From File</source>
        <translation>MELVOX-Profil aus Datei laden</translation>
    </message>
    <message>
        <source>Loading From</source>
        <translation>Laden aus</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stand:</translation>
    </message>
</context>
<context>
    <name>melvoxUiReceiverInformation</name>
    <message>
        <source>Receiver Information</source>
        <translation>Empfängerangaben</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>PVT</source>
        <translation>PVT</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Receiver ID</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Firmwareversion:</translation>
    </message>
    <message>
        <source>Iridium Antenna IMEI Number:</source>
        <translation>IMEI der Iridium-Antenne:</translation>
    </message>
    <message>
        <source>Provisioning Status:</source>
        <translation>Freischaltung:</translation>
    </message>
    <message>
        <source>Receiver Component Versions</source>
        <translation>Versionen der Empfängerteile</translation>
    </message>
    <message>
        <source>LTE Modem</source>
        <translation>LTE-Modem</translation>
    </message>
    <message>
        <source>Modem Status:</source>
        <translation>Modemzustand:</translation>
    </message>
    <message>
        <source>Network Status:</source>
        <translation>Netzzustand:</translation>
    </message>
    <message>
        <source>RSSI:</source>
        <translation>RSSI:</translation>
    </message>
    <message>
        <source>Toggle LTE Modem</source>
        <translation>LTE-Modem umschalten</translation>
    </message>
</context>
<context>
    <name>melvoxUiRestart</name>
    <message>
        <source>Restart</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <source>Warm Restart</source>
        <translation>Warmstart</translation>
    </message>
    <message>
        <source>Clear Ephemeris and Restart:</source>
        <translation>Ephemeriden löschen und neu starten:</translation>
    </message>
    <message>
        <source>Cold Restart</source>
        <translation>Kaltstart</translation>
    </message>
    <message>
        <source>Use Built-In Almanac:</source>
        <translation>Eingebauten Almanach nutzen:</translation>
    </message>
    <message>
        <source>Use Built-In Almanac</source>
        <translation>Eingebauten Almanach nutzen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Clear Position, Almanac, Ephemeris, Time, and Restart:</source>
        <translation>Position, Almanach, Ephemeriden und Zeit löschen und neu starten:</translation>
    </message>
</context>
<context>
    <name>melvoxUiRtkConfiguration</name>
    <message>
        <source>RTK Configuration</source>
        <translation>RTK-Einstellungen</translation>
    </message>
    <message>
        <source>Antenna Alignment Configuration</source>
        <translation>Einstellung der Antennenausrichtung</translation>
    </message>
    <message>
        <source>Antenna Alignment:</source>
        <translation>Antennenausrichtung:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Antenna Alignment</source>
        <translation>Antennenausrichtung</translation>
    </message>
    <message>
        <source>Lateral</source>
        <translation>Quer</translation>
    </message>
    <message>
        <source>Longitudinal</source>
        <translation>Längs</translation>
    </message>
    <message>
        <source>User-Specified</source>
        <translation>Eigener Winkel</translation>
    </message>
    <message>
        <source>User Angle:</source>
        <translation>Winkel:</translation>
    </message>
    <message>
        <source>MBRTK User Angle</source>
        <translation>Eigener MBRTK-Winkel</translation>
    </message>
</context>
<context>
    <name>melvoxUiSettingsProfiles</name>
    <message>
        <source>Settings Profiles</source>
        <translation>Einstellungsprofile</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Save New Profile</source>
        <translation>Neues Profil speichern</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>New Profile Name</source>
        <translation>Name des neuen Profils</translation>
    </message>
</context>
<context>
    <name>melvoxUiSolutionControl</name>
    <message>
        <source>Solution Control</source>
        <translation>Lösungssteuerung</translation>
    </message>
    <message>
        <source>Position Solution</source>
        <translation>Positionslösung</translation>
    </message>
    <message>
        <source>Elevation Mask:</source>
        <translation>Elevationsmaske:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Elevation Mask</source>
        <translation>Elevationsmaske</translation>
    </message>
    <message>
        <source>Maximum PDOP:</source>
        <translation>Höchster PDOP:</translation>
    </message>
    <message>
        <source>Maximum PDOP</source>
        <translation>Höchster PDOP</translation>
    </message>
    <message>
        <source>Geoidal Model:</source>
        <translation>Geoidmodell:</translation>
    </message>
    <message>
        <source>Geoidal Model</source>
        <translation>Geoidmodell</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>EGM84</source>
        <translation>EGM84</translation>
    </message>
    <message>
        <source>LEO OTI Configuration</source>
        <translation>LEO-OTI-Einstellungen</translation>
    </message>
    <message>
        <source>LEO OTI Mode:</source>
        <translation>LEO-OTI-Betrieb:</translation>
    </message>
    <message>
        <source>LEO OTI Mode</source>
        <translation>LEO-OTI-Betrieb</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>Protokoll:</translation>
    </message>
    <message>
        <source>LEO OTI Protocol</source>
        <translation>LEO-OTI-Protokoll</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>HTTPS</source>
        <translation>HTTPS</translation>
    </message>
    <message>
        <source>Corrections Inputs</source>
        <translation>Korrektureingänge</translation>
    </message>
    <message>
        <source>Enabled:</source>
        <translation>Eingeschaltet:</translation>
    </message>
    <message>
        <source>Maximum Differential Age (seconds):</source>
        <translation>Höchstes Korrekturalter (Sekunden):</translation>
    </message>
    <message>
        <source>RTCM V2/V3</source>
        <translation>RTCM V2/V3</translation>
    </message>
    <message>
        <source>RTCM V2/V3 Enabled</source>
        <translation>RTCM V2/V3 eingeschaltet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>RTCM 1,9 Max Diff Age</source>
        <translation>Höchstes Alter RTCM 1,9</translation>
    </message>
    <message>
        <source>SBAS</source>
        <translation>SBAS</translation>
    </message>
    <message>
        <source>SBAS Enabled</source>
        <translation>SBAS eingeschaltet</translation>
    </message>
    <message>
        <source>SBAS Max Diff Age</source>
        <translation>Höchstes Alter SBAS</translation>
    </message>
    <message>
        <source>LEO</source>
        <translation>LEO</translation>
    </message>
    <message>
        <source>LEO Enabled</source>
        <translation>LEO eingeschaltet</translation>
    </message>
    <message>
        <source>MRV Max Diff Age</source>
        <translation>Höchstes Alter MRV</translation>
    </message>
</context>
<context>
    <name>melvoxUiUsbFirmwareSelectDialog</name>
    <message>
        <source>Select Firmware Package</source>
        <translation>Firmwarepaket wählen</translation>
    </message>
    <message>
        <source>Firmware Packages</source>
        <translation>Firmwarepakete</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>BOOT1</source>
        <translation>BOOT1</translation>
    </message>
    <message>
        <source>BOOT2</source>
        <translation>BOOT2</translation>
    </message>
    <message>
        <source>NAV</source>
        <translation>NAV</translation>
    </message>
    <message>
        <source>PIOBOOT1</source>
        <translation>PIOBOOT1</translation>
    </message>
    <message>
        <source>PIOBOOT2</source>
        <translation>PIOBOOT2</translation>
    </message>
    <message>
        <source>PIOAPP</source>
        <translation>PIOAPP</translation>
    </message>
    <message>
        <source>0 firmware package(s) found</source>
        <translation>0 Firmwarepaket(e) gefunden</translation>
    </message>
</context>
<context>
    <name>melvoxUiUsbProfileListDialog</name>
    <message>
        <source>Select MELVOX Profile File</source>
        <translation>MELVOX-Profildatei wählen</translation>
    </message>
    <message>
        <source>Profile Files</source>
        <translation>Profildateien</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Dateiname</translation>
    </message>
</context>
<context>
    <name>melvoxUiUsbWebUiSelectDialog</name>
    <message>
        <source>Select Web Interface Package</source>
        <translation>Webpaket wählen</translation>
    </message>
    <message>
        <source>Web Interface Packages</source>
        <translation>Webpakete</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>melvoxUiVHDInfo</name>
    <message>
        <source>VHD Info</source>
        <translation>VHD-Angaben</translation>
    </message>
    <message>
        <source>VHD Summary</source>
        <translation>VHD-Übersicht</translation>
    </message>
    <message>
        <source>Corrected Heading:</source>
        <translation>Berichtigter Kurs:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Attitude:</source>
        <translation>Lage:</translation>
    </message>
    <message>
        <source>Baseline:</source>
        <translation>Basislinie:</translation>
    </message>
    <message>
        <source>Heading RMS:</source>
        <translation>Kurs-RMS:</translation>
    </message>
    <message>
        <source>Raw Heading:</source>
        <translation>Roher Kurs:</translation>
    </message>
</context>
<context>
    <name>melvoxUiVirtualPortConfigDialog</name>
    <message>
        <source>MELVOX Virtual Port Configuration</source>
        <translation>Virtueller Port des MELVOX</translation>
    </message>
    <message>
        <source>Configure Virtual Port</source>
        <translation>Virtuellen Port einrichten</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Enabled:</source>
        <translation>Eingeschaltet:</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Eingeschaltet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Betrieb:</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>UDP (Restrict)</source>
        <translation>UDP (beschränkt)</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>Remote Address:</source>
        <translation>Gegenadresse:</translation>
    </message>
    <message>
        <source>Ethernet Virtual Port IP Address</source>
        <translation>IP-Adresse des virtuellen Ethernet-Ports</translation>
    </message>
    <message>
        <source>Remote Port:</source>
        <translation>Gegenport:</translation>
    </message>
    <message>
        <source>Ethernet Virtual Port Remote Port</source>
        <translation>Gegenport des virtuellen Ethernet-Ports</translation>
    </message>
    <message>
        <source>Local Port:</source>
        <translation>Eigener Port:</translation>
    </message>
    <message>
        <source>Ethernet Virtual Port Local Port</source>
        <translation>Eigener Port des virtuellen Ethernet-Ports</translation>
    </message>
</context>
<context>
    <name>melvoxUiWebInterface</name>
    <message>
        <source>Web Interface</source>
        <translation>Weboberfläche</translation>
    </message>
    <message>
        <source>Web Interface Settings</source>
        <translation>Einstellungen der Weboberfläche</translation>
    </message>
    <message>
        <source>Web Interface Enabled:</source>
        <translation>Weboberfläche eingeschaltet:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Web Interface Enabled</source>
        <translation>Weboberfläche eingeschaltet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Web Interface can only be enabled/disabled when connected via a physical port (COM or USB).</source>
        <translation>Die Weboberfläche lässt sich nur über einen physischen Port (COM oder USB) ein- und ausschalten.</translation>
    </message>
    <message>
        <source>Upload Interface Files</source>
        <translation>Webpaket übertragen</translation>
    </message>
    <message>
        <source>Selected Package:</source>
        <translation>Gewähltes Paket:</translation>
    </message>
    <message>
        <source>Select Package</source>
        <translation>Paket wählen</translation>
    </message>
    <message>
        <source>Cancel Upload</source>
        <translation>Übertragung abbrechen</translation>
    </message>
    <message>
        <source>Upload Progress</source>
        <translation>Fortschritt der Übertragung</translation>
    </message>
    <message>
        <source>0.00%</source>
        <translation>0.00%</translation>
    </message>
    <message>
        <source>Note: Uploading a MELVOX Web Interface can take up to 5 minutes and will interrupt the functionality of the receiver.  During the upload, the receiver will be restarted twice.</source>
        <translation>Hinweis: Die Übertragung einer MELVOX-Weboberfläche kann bis zu 5 Minuten dauern und unterbricht den Betrieb des Empfängers.  Dabei startet der Empfänger zweimal neu.</translation>
    </message>
</context>
<context>
    <name>melvoxUiWiFiPasskeyDialog</name>
    <message>
        <source>MELVOX WiFi Passkey</source>
        <translation>MELVOX-WLAN-Schlüssel</translation>
    </message>
    <message>
        <source>Passkey:</source>
        <translation>Schlüssel:</translation>
    </message>
    <message>
        <source>WiFi Passkey</source>
        <translation>WLAN-Schlüssel</translation>
    </message>
</context>
<context>
    <name>melvoxVersionWarnDialog</name>
    <message>
        <source>Melvox Firmware Version Warning</source>
        <translation>Warnung zur Melvox-Firmwareversion</translation>
    </message>
    <message>
        <source>This receiver is running an older firmware version.
Please upgrade the receiver to the following firmware version or later.</source>
        <translation>Dieser Empfänger läuft mit einer älteren Firmware.
Bitte den Empfänger auf die folgende oder eine spätere Firmwareversion bringen.</translation>
    </message>
    <message>
        <source>Minimum Version:</source>
        <translation>Mindestversion:</translation>
    </message>
    <message>
        <source>1.13.15</source>
        <translation>1.13.15</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Derzeitige Version:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
</context>
</TS>
