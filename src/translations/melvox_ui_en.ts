<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiAntennaConfigDialog_t</name>
    <message>
        <source>Setup ID must be 0 - </source>
        <translation>Setup ID must be 0 - </translation>
    </message>
    <message>
        <source>Slant Range must be </source>
        <translation>Slant Range must be </translation>
    </message>
    <message>
        <source>Radius must be </source>
        <translation>Radius must be </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiAntennaIdentification_t</name>
    <message>
        <source>Configure</source>
        <translation>Configure</translation>
    </message>
    <message>
        <source>(Auto) </source>
        <translation>(Auto) </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiBasePositionDialog_t</name>
    <message>
        <source>Base Station Latitude</source>
        <translation>Base Station Latitude</translation>
    </message>
    <message>
        <source>Base Station Longitude</source>
        <translation>Base Station Longitude</translation>
    </message>
    <message>
        <source>Base Station Height</source>
        <translation>Base Station Height</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiCorrectionSatSelectDialog_t</name>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiCorrectionsReceiver_t</name>
    <message>
        <source>Wait for power</source>
        <translation>Wait for power</translation>
    </message>
    <message>
        <source>Processing disabled</source>
        <translation>Processing disabled</translation>
    </message>
    <message>
        <source>Wait for AGC to settle</source>
        <translation>Wait for AGC to settle</translation>
    </message>
    <message>
        <source>Start of processing</source>
        <translation>Start of processing</translation>
    </message>
    <message>
        <source>Signal detection</source>
        <translation>Signal detection</translation>
    </message>
    <message>
        <source>Signal detection failed</source>
        <translation>Signal detection failed</translation>
    </message>
    <message>
        <source>Frequency verify</source>
        <translation>Frequency verify</translation>
    </message>
    <message>
        <source>Signal acquisition</source>
        <translation>Signal acquisition</translation>
    </message>
    <message>
        <source>AFC plus Costas pull-in</source>
        <translation>AFC plus Costas pull-in</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Locked</translation>
    </message>
    <message>
        <source>VFFT</source>
        <translation>VFFT</translation>
    </message>
    <message>
        <source>Invalid MRV Almanac Auto-switch Time</source>
        <translation>Invalid MRV Almanac Auto-switch Time</translation>
    </message>
    <message>
        <source>Invalid MRV Almanac Auto-switch Hours</source>
        <translation>Invalid MRV Almanac Auto-switch Hours</translation>
    </message>
    <message>
        <source>MRV Almanac Auto-switch Minutes must be 0 - 59</source>
        <translation>MRV Almanac Auto-switch Minutes must be 0 - 59</translation>
    </message>
    <message>
        <source>MRV Almanac Auto-switch Time must be &lt;= 24 hours</source>
        <translation>MRV Almanac Auto-switch Time must be &lt;= 24 hours</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiCustomSatDialog_t</name>
    <message>
        <source>Define Satellite</source>
        <translation>Define Satellite</translation>
    </message>
    <message>
        <source>Clear Satellite</source>
        <translation>Clear Satellite</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiDifferentialConfiguration_t</name>
    <message>
        <source>RTCM Site ID must be </source>
        <translation>RTCM Site ID must be </translation>
    </message>
    <message>
        <source>RTCM Station ID must be </source>
        <translation>RTCM Station ID must be </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiEthernetConfiguration_t</name>
    <message>
        <source>IP Address</source>
        <translation>IP Address</translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;center&gt;&lt;b&gt;WARNING:&lt;/b&gt; Changing the ethernet settings will temporarily lose connection and cause the quality panel to blank.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;&lt;FONT COLOR=&apos;#800000&apos;&gt;&lt;b&gt;Do not make changes during critical operations.&lt;/b&gt;&lt;/FONT&gt;&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;Are you sure you want to make changes?&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(Press &lt;b&gt;Yes&lt;/b&gt; to continue, &lt;b&gt;No&lt;/b&gt; to cancel)&lt;/center&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;center&gt;&lt;b&gt;WARNING:&lt;/b&gt; Changing the ethernet settings will temporarily lose connection and cause the quality panel to blank.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;&lt;FONT COLOR=&apos;#800000&apos;&gt;&lt;b&gt;Do not make changes during critical operations.&lt;/b&gt;&lt;/FONT&gt;&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;Are you sure you want to make changes?&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(Press &lt;b&gt;Yes&lt;/b&gt; to continue, &lt;b&gt;No&lt;/b&gt; to cancel)&lt;/center&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Change the ethernet settings?</source>
        <translation>Change the ethernet settings?</translation>
    </message>
    <message>
        <source>IP Address is invalid</source>
        <translation>IP Address is invalid</translation>
    </message>
    <message>
        <source>Netmask must be a valid IP address</source>
        <translation>Netmask must be a valid IP address</translation>
    </message>
    <message>
        <source>Gateway must be a valid IP address</source>
        <translation>Gateway must be a valid IP address</translation>
    </message>
    <message>
        <source>DNS Server 1 must be a valid IP address</source>
        <translation>DNS Server 1 must be a valid IP address</translation>
    </message>
    <message>
        <source>DNS Server 2 must be a valid IP address</source>
        <translation>DNS Server 2 must be a valid IP address</translation>
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
        <translation>WAAS Test Mode</translation>
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
        <translation>Reserved</translation>
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
        <translation>RTCM3-L1 Compact</translation>
    </message>
    <message>
        <source>RTCM3-L1 Full</source>
        <translation>RTCM3-L1 Full</translation>
    </message>
    <message>
        <source>RTCM3-Dual Compact</source>
        <translation>RTCM3-Dual Compact</translation>
    </message>
    <message>
        <source>RTCM3-Dual Full</source>
        <translation>RTCM3-Dual Full</translation>
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
        <translation>Unknown</translation>
    </message>
    <message>
        <source>Navigation solution available</source>
        <translation>Navigation solution available</translation>
    </message>
    <message>
        <source>Too few measurements for navigation init</source>
        <translation>Too few measurements for navigation init</translation>
    </message>
    <message>
        <source>Initialization failed</source>
        <translation>Initialization failed</translation>
    </message>
    <message>
        <source>Navigation initialization completing</source>
        <translation>Navigation initialization completing</translation>
    </message>
    <message>
        <source>Too few measurements for navigation</source>
        <translation>Too few measurements for navigation</translation>
    </message>
    <message>
        <source>Navigation PDOP too high</source>
        <translation>Navigation PDOP too high</translation>
    </message>
    <message>
        <source>No velocity solution</source>
        <translation>No velocity solution</translation>
    </message>
    <message>
        <source>Navigation update too large</source>
        <translation>Navigation update too large</translation>
    </message>
    <message>
        <source>Export height/velocity limits exceeded</source>
        <translation>Export height/velocity limits exceeded</translation>
    </message>
    <message>
        <source>Available navigation modes are disabled </source>
        <translation>Available navigation modes are disabled </translation>
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
        <translation>Non default</translation>
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
        <translation>MELVOX Firmware Files (*.%1);;All Files (*)</translation>
    </message>
    <message>
        <source>Open MELVOX Firmware</source>
        <translation>Open MELVOX Firmware</translation>
    </message>
    <message>
        <source>Invalid Firmware Package</source>
        <translation>Invalid Firmware Package</translation>
    </message>
    <message>
        <source>The selected path does not appear to contain valid MELVOX firmware</source>
        <translation>The selected path does not appear to contain valid MELVOX firmware</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiFirmwareUpdate_t</name>
    <message>
        <source>Select Package</source>
        <translation>Select Package</translation>
    </message>
    <message>
        <source>Toggle Component</source>
        <translation>Toggle Component</translation>
    </message>
    <message>
        <source>Start Update</source>
        <translation>Start Update</translation>
    </message>
    <message>
        <source>Firmware Update Successful</source>
        <translation>Firmware Update Successful</translation>
    </message>
    <message>
        <source>Firmware update complete.  Press OK to power cycle the receiver</source>
        <translation>Firmware update complete.  Press OK to power cycle the receiver</translation>
    </message>
    <message>
        <source>Firmware Update Failed</source>
        <translation>Firmware Update Failed</translation>
    </message>
    <message>
        <source>Update of one or more firmware components failed.  Press OK to power cycle the receiver then retry.</source>
        <translation>Update of one or more firmware components failed.  Press OK to power cycle the receiver then retry.</translation>
    </message>
    <message>
        <source>Firmware updates must be performed over the receiver&apos;s serial, USB, or TCP interfaces.</source>
        <translation>Firmware updates must be performed over the receiver&apos;s serial, USB, or TCP interfaces.</translation>
    </message>
    <message>
        <source>Firmware update in progress.  Do not turn off the receiver or unplug the USB device.</source>
        <translation>Firmware update in progress.  Do not turn off the receiver or unplug the USB device.</translation>
    </message>
    <message>
        <source>Unable to lock port</source>
        <translation>Unable to lock port</translation>
    </message>
    <message>
        <source>Firmware update complete.  Cycle power to the receiver.</source>
        <translation>Firmware update complete.  Cycle power to the receiver.</translation>
    </message>
    <message>
        <source>Update of one or more firmware components failed.  Cycle power to the receiver and retry.</source>
        <translation>Update of one or more firmware components failed.  Cycle power to the receiver and retry.</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiNavigationMode_t</name>
    <message>
        <source>Velocity smoothing setting must be specified</source>
        <translation>Velocity smoothing setting must be specified</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiOutputMessages_t</name>
    <message>
        <source>Custom Interval</source>
        <translation>Custom Interval</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Interval </source>
        <translation>Interval </translation>
    </message>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Disable</translation>
    </message>
    <message>
        <source>Disable All</source>
        <translation>Disable All</translation>
    </message>
    <message>
        <source>General Settings</source>
        <translation>General Settings</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Confirm Disable MELVOX Output Message</source>
        <translation>Confirm Disable MELVOX Output Message</translation>
    </message>
    <message>
        <source>Are you sure you want to disable output of this message?</source>
        <translation>Are you sure you want to disable output of this message?</translation>
    </message>
    <message>
        <source>Confirm Disable MELVOX Output Messages</source>
        <translation>Confirm Disable MELVOX Output Messages</translation>
    </message>
    <message>
        <source>Are you sure you want to disable output of all messages on this port?</source>
        <translation>Are you sure you want to disable output of all messages on this port?</translation>
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
        <translation>Auxiliary</translation>
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
        <translation>UDP (Restrict)</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>Physical</source>
        <translation>Physical</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtual</translation>
    </message>
    <message>
        <source>Configure Port</source>
        <translation>Configure Port</translation>
    </message>
    <message>
        <source>The MELVOX is connected at a baud rate (%1) below the recommended minimum (%2).
Attempting to change the baud rate to the recommended minimum.
In the event the baud rate remains unchanged, please connect again directly at the current baud rate %1.</source>
        <translation>The MELVOX is connected at a baud rate (%1) below the recommended minimum (%2).
Attempting to change the baud rate to the recommended minimum.
In the event the baud rate remains unchanged, please connect again directly at the current baud rate %1.</translation>
    </message>
    <message>
        <source>Invalid MELVOX Baud Rate</source>
        <translation>Invalid MELVOX Baud Rate</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiPpsConfiguration_t</name>
    <message>
        <source>Pulse width must be 0 - </source>
        <translation>Pulse width must be 0 - </translation>
    </message>
    <message>
        <source>Interval must be </source>
        <translation>Interval must be </translation>
    </message>
    <message>
        <source>Signal delay must be 0 - </source>
        <translation>Signal delay must be 0 - </translation>
    </message>
    <message>
        <source>Chip delay must be 0 - </source>
        <translation>Chip delay must be 0 - </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiProfileDumper_t</name>
    <message>
        <source>Save Melvox Profile</source>
        <translation>Save Melvox Profile</translation>
    </message>
    <message>
        <source>Melvox Profile (*.dravel);;All Files (*)</source>
        <translation>Melvox Profile (*.dravel);;All Files (*)</translation>
    </message>
    <message>
        <source> on </source>
        <translation> on </translation>
    </message>
    <message>
        <source>Dumping...</source>
        <translation>Dumping...</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiProfileLoader_t</name>
    <message>
        <source>Cancel Load</source>
        <translation>Cancel Load</translation>
    </message>
    <message>
        <source>Open MELVOX Profile</source>
        <translation>Open MELVOX Profile</translation>
    </message>
    <message>
        <source>MELVOX Profile (*.melvox);;All Files (*)</source>
        <translation>MELVOX Profile (*.melvox);;All Files (*)</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>Failed to open file</translation>
    </message>
    <message>
        <source>Locking port</source>
        <translation>Locking port</translation>
    </message>
    <message>
        <source>Unable to lock port</source>
        <translation>Unable to lock port</translation>
    </message>
    <message>
        <source>Loading data (%1/%2)</source>
        <translation>Loading data (%1/%2)</translation>
    </message>
    <message>
        <source>Load Complete</source>
        <translation>Load Complete</translation>
    </message>
    <message>
        <source>Error reading from file</source>
        <translation>Error reading from file</translation>
    </message>
    <message>
        <source>Error writing to port</source>
        <translation>Error writing to port</translation>
    </message>
    <message>
        <source>Error: port is not open</source>
        <translation>Error: port is not open</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>Unknown error</translation>
    </message>
    <message>
        <source>Upload cancelled</source>
        <translation>Upload cancelled</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiReceiverInformation_t</name>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>Toggle the LTE modem?</source>
        <translation>Toggle the LTE modem?</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;center&gt;You must have confirmation from Brel Support that this function is operational on this receiver.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;LTE is &lt;b&gt;ONLY&lt;/b&gt; used for remote diagnostic purposes.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(Press &lt;b&gt;Yes&lt;/b&gt; to toggle, &lt;b&gt;No&lt;/b&gt; to cancel)&lt;/center&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;center&gt;You must have confirmation from Brel Support that this function is operational on this receiver.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;LTE is &lt;b&gt;ONLY&lt;/b&gt; used for remote diagnostic purposes.&lt;/center&gt;&lt;/p&gt;&lt;p&gt;&lt;center&gt;(Press &lt;b&gt;Yes&lt;/b&gt; to toggle, &lt;b&gt;No&lt;/b&gt; to cancel)&lt;/center&gt;&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiRtkConfiguration_t</name>
    <message>
        <source>User angle must be 0 - </source>
        <translation>User angle must be 0 - </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiSettingsProfiles_t</name>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>Set Active</source>
        <translation>Set Active</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Confirm Delete Melvox Profile</source>
        <translation>Confirm Delete Melvox Profile</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the selected profile?</source>
        <translation>Are you sure you want to delete the selected profile?</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiSolutionControl_t</name>
    <message>
        <source>Elevation mask must be </source>
        <translation>Elevation mask must be </translation>
    </message>
    <message>
        <source>PDOP limit must be </source>
        <translation>PDOP limit must be </translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiUsbFirmwareSelectDialog_t</name>
    <message>
        <source>Stop Scan</source>
        <translation>Stop Scan</translation>
    </message>
    <message>
        <source>Select Package</source>
        <translation>Select Package</translation>
    </message>
    <message>
        <source>%1 firmware package(s) found</source>
        <translation>%1 firmware package(s) found</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiUsbProfileListDialog_t</name>
    <message>
        <source>Stop Scan</source>
        <translation>Stop Scan</translation>
    </message>
    <message>
        <source>Load Profile</source>
        <translation>Load Profile</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiUsbWebUiSelectDialog_t</name>
    <message>
        <source>Stop Scan</source>
        <translation>Stop Scan</translation>
    </message>
    <message>
        <source>Select Package</source>
        <translation>Select Package</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiVirtualPortConfigDialog_t</name>
    <message>
        <source>Remote Address must be a valid IP address</source>
        <translation>Remote Address must be a valid IP address</translation>
    </message>
    <message>
        <source>Remote Port must be 0 - 65535</source>
        <translation>Remote Port must be 0 - 65535</translation>
    </message>
    <message>
        <source>Local Port must be 0 - 65535</source>
        <translation>Local Port must be 0 - 65535</translation>
    </message>
</context>
<context>
    <name>brel_common_qt_gui::melvoxUiWebInterface_t</name>
    <message>
        <source>Query</source>
        <translation>Query</translation>
    </message>
    <message>
        <source>MELVOX Web UI Packages (*.%1);;All Files (*)</source>
        <translation>MELVOX Web UI Packages (*.%1);;All Files (*)</translation>
    </message>
    <message>
        <source>Open MELVOX Web UI Package</source>
        <translation>Open MELVOX Web UI Package</translation>
    </message>
    <message>
        <source>Upload Complete</source>
        <translation>Upload Complete</translation>
    </message>
</context>
<context>
    <name>melvoxUiAntennaConfigDialog</name>
    <message>
        <source>MELVOX Virtual Port Configuration</source>
        <translation>MELVOX Virtual Port Configuration</translation>
    </message>
    <message>
        <source>Antenna:</source>
        <translation>Antenna:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Antenna Identification</source>
        <translation>Antenna Identification</translation>
    </message>
    <message>
        <source>IGS Antenna:</source>
        <translation>IGS Antenna:</translation>
    </message>
    <message>
        <source>IGS Antenna</source>
        <translation>IGS Antenna</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Serial Number:</translation>
    </message>
    <message>
        <source>Antenna Serial Number</source>
        <translation>Antenna Serial Number</translation>
    </message>
    <message>
        <source>Setup ID:</source>
        <translation>Setup ID:</translation>
    </message>
    <message>
        <source>Antenna Setup ID</source>
        <translation>Antenna Setup ID</translation>
    </message>
    <message>
        <source>Antenna Adjustments</source>
        <translation>Antenna Adjustments</translation>
    </message>
    <message>
        <source>Use Adjustments:</source>
        <translation>Use Adjustments:</translation>
    </message>
    <message>
        <source>Use Adjustments</source>
        <translation>Use Adjustments</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Slant Range (mm):</source>
        <translation>Slant Range (mm):</translation>
    </message>
    <message>
        <source>Slant Range Sign</source>
        <translation>Slant Range Sign</translation>
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
        <translation>Antenna Slant Range</translation>
    </message>
    <message>
        <source>Radius (mm):</source>
        <translation>Radius (mm):</translation>
    </message>
    <message>
        <source>Radius Sign</source>
        <translation>Radius Sign</translation>
    </message>
    <message>
        <source>Antenna Radius</source>
        <translation>Antenna Radius</translation>
    </message>
</context>
<context>
    <name>melvoxUiAntennaIdentification</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Antennas</source>
        <translation>Antennas</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenna</translation>
    </message>
    <message>
        <source>IGS Antenna Name</source>
        <translation>IGS Antenna Name</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Setup ID</source>
        <translation>Setup ID</translation>
    </message>
    <message>
        <source>Use Adjustments</source>
        <translation>Use Adjustments</translation>
    </message>
    <message>
        <source>Slant Range (mm)</source>
        <translation>Slant Range (mm)</translation>
    </message>
    <message>
        <source>Radius (mm)</source>
        <translation>Radius (mm)</translation>
    </message>
    <message>
        <source>Base Station Antenna Identification</source>
        <translation>Base Station Antenna Identification</translation>
    </message>
    <message>
        <source>IGS Antenna:</source>
        <translation>IGS Antenna:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>IGS Antenna</source>
        <translation>IGS Antenna</translation>
    </message>
    <message>
        <source>Dual Antenna Mode</source>
        <translation>Dual Antenna Mode</translation>
    </message>
    <message>
        <source>Dual Antenna Mode:</source>
        <translation>Dual Antenna Mode:</translation>
    </message>
</context>
<context>
    <name>melvoxUiBasePositionDialog</name>
    <message>
        <source>MELVOX Base Station Position</source>
        <translation>MELVOX Base Station Position</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>Latitude:</translation>
    </message>
    <message>
        <source>Base Station Latitude</source>
        <translation>Base Station Latitude</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>Longitude:</translation>
    </message>
    <message>
        <source>Base Station Longitude</source>
        <translation>Base Station Longitude</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Base Station Height</source>
        <translation>Base Station Height</translation>
    </message>
</context>
<context>
    <name>melvoxUiCorrectionSatSelectDialog</name>
    <message>
        <source>MELVOX Corrections Satellite</source>
        <translation>MELVOX Corrections Satellite</translation>
    </message>
    <message>
        <source>Satellite Selection</source>
        <translation>Satellite Selection</translation>
    </message>
    <message>
        <source>Auto-Select:</source>
        <translation>Auto-Select:</translation>
    </message>
    <message>
        <source>Auto-Select</source>
        <translation>Auto-Select</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Correction Satellites</source>
        <translation>Correction Satellites</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Look Angle</source>
        <translation>Look Angle</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributes</translation>
    </message>
</context>
<context>
    <name>melvoxUiCorrectionsReceiver</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Satellite Selection</source>
        <translation>Satellite Selection</translation>
    </message>
    <message>
        <source>Current Selection:</source>
        <translation>Current Selection:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Auto-Select:</source>
        <translation>Auto-Select:</translation>
    </message>
    <message>
        <source>Correction Selection:</source>
        <translation>Correction Selection:</translation>
    </message>
    <message>
        <source>Correction Selection</source>
        <translation>Correction Selection</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Secondary</translation>
    </message>
    <message>
        <source>Select Satellite</source>
        <translation>Select Satellite</translation>
    </message>
    <message>
        <source>MRV Almanac</source>
        <translation>MRV Almanac</translation>
    </message>
    <message>
        <source>MRV Almanac Updated:</source>
        <translation>MRV Almanac Updated:</translation>
    </message>
    <message>
        <source>New Almanac Available:</source>
        <translation>New Almanac Available:</translation>
    </message>
    <message>
        <source>Switch to New Almanac</source>
        <translation>Switch to New Almanac</translation>
    </message>
    <message>
        <source>Switch Policy:</source>
        <translation>Switch Policy:</translation>
    </message>
    <message>
        <source>Switch Policy</source>
        <translation>Switch Policy</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Auto-switch After(HH:MM):</source>
        <translation>Auto-switch After(HH:MM):</translation>
    </message>
    <message>
        <source>MRV Almanac Auto-switch Time</source>
        <translation>MRV Almanac Auto-switch Time</translation>
    </message>
    <message>
        <source>Downlink Status</source>
        <translation>Downlink Status</translation>
    </message>
    <message>
        <source>MRV Satellite</source>
        <translation>MRV Satellite</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Signal Status</source>
        <translation>Signal Status</translation>
    </message>
    <message>
        <source>SNR</source>
        <translation>SNR</translation>
    </message>
    <message>
        <source>AGC Voltage (V)</source>
        <translation>AGC Voltage (V)</translation>
    </message>
    <message>
        <source>Packets % Idle</source>
        <translation>Packets % Idle</translation>
    </message>
    <message>
        <source>Packets % Bad</source>
        <translation>Packets % Bad</translation>
    </message>
    <message>
        <source>Resync Count</source>
        <translation>Resync Count</translation>
    </message>
</context>
<context>
    <name>melvoxUiCustomSatDialog</name>
    <message>
        <source>MELVOX Custom Satellite</source>
        <translation>MELVOX Custom Satellite</translation>
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
        <translation>Custom Satellite ID</translation>
    </message>
    <message>
        <source>Frequency (MHz):</source>
        <translation>Frequency (MHz):</translation>
    </message>
    <message>
        <source>Custom Satellite Frequency</source>
        <translation>Custom Satellite Frequency</translation>
    </message>
</context>
<context>
    <name>melvoxUiDifferentialConfiguration</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>RTCM Configuration</source>
        <translation>RTCM Configuration</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Rover - RTCM</source>
        <translation>Rover - RTCM</translation>
    </message>
    <message>
        <source>Base - RTCM2.3 (1 &amp; 31)</source>
        <translation>Base - RTCM2.3 (1 &amp; 31)</translation>
    </message>
    <message>
        <source>Base - RTCM2.3 (9 &amp; 34)</source>
        <translation>Base - RTCM2.3 (9 &amp; 34)</translation>
    </message>
    <message>
        <source>Input Version:</source>
        <translation>Input Version:</translation>
    </message>
    <message>
        <source>Input Version</source>
        <translation>Input Version</translation>
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
        <translation>Base Output Port:</translation>
    </message>
    <message>
        <source>Base Output Port</source>
        <translation>Base Output Port</translation>
    </message>
    <message>
        <source>Station/Site ID:</source>
        <translation>Station/Site ID:</translation>
    </message>
    <message>
        <source>Station/Site ID</source>
        <translation>Station/Site ID</translation>
    </message>
    <message>
        <source>Dynamic Mode:</source>
        <translation>Dynamic Mode:</translation>
    </message>
    <message>
        <source>Dynamic Mode</source>
        <translation>Dynamic Mode</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>Dynamic</source>
        <translation>Dynamic</translation>
    </message>
    <message>
        <source>Base Station</source>
        <translation>Base Station</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Base Station Name</source>
        <translation>Base Station Name</translation>
    </message>
    <message>
        <source>Latitude:</source>
        <translation>Latitude:</translation>
    </message>
    <message>
        <source>Longitude:</source>
        <translation>Longitude:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Configure</source>
        <translation>Configure</translation>
    </message>
</context>
<context>
    <name>melvoxUiDtmWarnDialog</name>
    <message>
        <source>MELVOX NMEA Output Warning</source>
        <translation>MELVOX NMEA Output Warning</translation>
    </message>
    <message>
        <source>You have modified the settings of a NMEA message that can automatically enable output of the DTM or PZLQDTM NMEA messages.  These messages may be disabled manually from the Output Configuration screen.

Please see the help page to understand the effects of modifying the output of these messages.
</source>
        <translation>You have modified the settings of a NMEA message that can automatically enable output of the DTM or PZLQDTM NMEA messages.  These messages may be disabled manually from the Output Configuration screen.

Please see the help page to understand the effects of modifying the output of these messages.
</translation>
    </message>
    <message>
        <source>Do not show this warning again</source>
        <translation>Do not show this warning again</translation>
    </message>
</context>
<context>
    <name>melvoxUiEthernetConfiguration</name>
    <message>
        <source>Ethernet Configuration</source>
        <translation>Ethernet Configuration</translation>
    </message>
    <message>
        <source>IP Address Configuration</source>
        <translation>IP Address Configuration</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <source>IP Address:</source>
        <translation>IP Address:</translation>
    </message>
    <message>
        <source>Ethernet Interface IP Address</source>
        <translation>Ethernet Interface IP Address</translation>
    </message>
    <message>
        <source>Netmask:</source>
        <translation>Netmask:</translation>
    </message>
    <message>
        <source>Ethernet Interface Netmask</source>
        <translation>Ethernet Interface Netmask</translation>
    </message>
    <message>
        <source>Gateway:</source>
        <translation>Gateway:</translation>
    </message>
    <message>
        <source>Ethernet Interface Gateway</source>
        <translation>Ethernet Interface Gateway</translation>
    </message>
    <message>
        <source>DNS Server 1:</source>
        <translation>DNS Server 1:</translation>
    </message>
    <message>
        <source>Ethernet Interface DNS Server 1</source>
        <translation>Ethernet Interface DNS Server 1</translation>
    </message>
    <message>
        <source>DNS Server 2:</source>
        <translation>DNS Server 2:</translation>
    </message>
    <message>
        <source>Ethernet Interface DNS Server 2</source>
        <translation>Ethernet Interface DNS Server 2</translation>
    </message>
    <message>
        <source>WiFi Configuration</source>
        <translation>WiFi Configuration</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>State:</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Role:</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Role</translation>
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
        <translation>Access Point Configuration</translation>
    </message>
    <message>
        <source>Security:</source>
        <translation>Security:</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Security</translation>
    </message>
    <message>
        <source>Passkey:</source>
        <translation>Passkey:</translation>
    </message>
    <message>
        <source>WiFi Passkey</source>
        <translation>WiFi Passkey</translation>
    </message>
    <message>
        <source>WiFi Access Points</source>
        <translation>WiFi Access Points</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>RSS %</source>
        <translation>RSS %</translation>
    </message>
    <message>
        <source>Connected?</source>
        <translation>Connected?</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
</context>
<context>
    <name>melvoxUiExtendedNavInfo</name>
    <message>
        <source>Extended Navigation Info</source>
        <translation>Extended Navigation Info</translation>
    </message>
    <message>
        <source>Navigation Summary</source>
        <translation>Navigation Summary</translation>
    </message>
    <message>
        <source>GPS Week:</source>
        <translation>GPS Week:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>GPS Time:</source>
        <translation>GPS Time:</translation>
    </message>
    <message>
        <source>Nav Valid:</source>
        <translation>Nav Valid:</translation>
    </message>
    <message>
        <source>Station ID:</source>
        <translation>Station ID:</translation>
    </message>
    <message>
        <source>Datum:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Source Type:</source>
        <translation>Source Type:</translation>
    </message>
    <message>
        <source>Failure Code:</source>
        <translation>Failure Code:</translation>
    </message>
    <message>
        <source>Solid Earth Tide</source>
        <translation>Solid Earth Tide</translation>
    </message>
    <message>
        <source>Delta North (mm):</source>
        <translation>Delta North (mm):</translation>
    </message>
    <message>
        <source>Delta East (mm):</source>
        <translation>Delta East (mm):</translation>
    </message>
    <message>
        <source>Delta Up (mm):</source>
        <translation>Delta Up (mm):</translation>
    </message>
    <message>
        <source>Error Estimates Std Deviation</source>
        <translation>Error Estimates Std Deviation</translation>
    </message>
    <message>
        <source>Latitude (m):</source>
        <translation>Latitude (m):</translation>
    </message>
    <message>
        <source>Longitude (m):</source>
        <translation>Longitude (m):</translation>
    </message>
    <message>
        <source>Height (m):</source>
        <translation>Height (m):</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocity</translation>
    </message>
    <message>
        <source>North (m/s):</source>
        <translation>North (m/s):</translation>
    </message>
    <message>
        <source>East (m/s):</source>
        <translation>East (m/s):</translation>
    </message>
    <message>
        <source>Up (m/s):</source>
        <translation>Up (m/s):</translation>
    </message>
</context>
<context>
    <name>melvoxUiFirmwareUpdate</name>
    <message>
        <source>Firmware Update</source>
        <translation>Firmware Update</translation>
    </message>
    <message>
        <source>Melvox Firmware Update</source>
        <translation>Melvox Firmware Update</translation>
    </message>
    <message>
        <source>Selected Package:</source>
        <translation>Selected Package:</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(none)</translation>
    </message>
    <message>
        <source>Firmware Package</source>
        <translation>Firmware Package</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Component</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Update?</source>
        <translation>Update?</translation>
    </message>
    <message>
        <source>Current Versions</source>
        <translation>Current Versions</translation>
    </message>
    <message>
        <source>Update Status</source>
        <translation>Update Status</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Update Progress</source>
        <translation>Update Progress</translation>
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
        <translation>Navigation Mode</translation>
    </message>
    <message>
        <source>Navigation Measurement Use</source>
        <translation>Navigation Measurement Use</translation>
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
        <translation>GPS Use</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>GLONASS</source>
        <translation>GLONASS</translation>
    </message>
    <message>
        <source>GLONASS Use</source>
        <translation>GLONASS Use</translation>
    </message>
    <message>
        <source>Galileo</source>
        <translation>Galileo</translation>
    </message>
    <message>
        <source>Galileo Use</source>
        <translation>Galileo Use</translation>
    </message>
    <message>
        <source>Beidou</source>
        <translation>Beidou</translation>
    </message>
    <message>
        <source>Beidou Use</source>
        <translation>Beidou Use</translation>
    </message>
    <message>
        <source>Dynamic Mode</source>
        <translation>Dynamic Mode</translation>
    </message>
    <message>
        <source>Overall Mode:</source>
        <translation>Overall Mode:</translation>
    </message>
    <message>
        <source>Overall Mode</source>
        <translation>Overall Mode</translation>
    </message>
    <message>
        <source>Static</source>
        <translation>Static</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Velocity Smoothing:</source>
        <translation>Velocity Smoothing:</translation>
    </message>
    <message>
        <source>Velocity Smoothing</source>
        <translation>Velocity Smoothing</translation>
    </message>
</context>
<context>
    <name>melvoxUiOutputMessages</name>
    <message>
        <source>Output Messages</source>
        <translation>Output Messages</translation>
    </message>
    <message>
        <source>Messages For Port:</source>
        <translation>Messages For Port:</translation>
    </message>
    <message>
        <source>Messages For Port</source>
        <translation>Messages For Port</translation>
    </message>
    <message>
        <source>Warning: Control Port Selected</source>
        <translation>Warning: Control Port Selected</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Output Type</source>
        <translation>Output Type</translation>
    </message>
    <message>
        <source>Port Usage</source>
        <translation>Port Usage</translation>
    </message>
    <message>
        <source>Tx:</source>
        <translation>Tx:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Rx:</source>
        <translation>Rx:</translation>
    </message>
    <message>
        <source>Message Settings</source>
        <translation>Message Settings</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Message:</translation>
    </message>
    <message>
        <source>Method:</source>
        <translation>Method:</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Method</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Interval</source>
        <translation>Interval</translation>
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
        <translation>or Interval (sec):</translation>
    </message>
    <message>
        <source>Interval (sec)</source>
        <translation>Interval (sec)</translation>
    </message>
    <message>
        <source>Output Settings for All Ports</source>
        <translation>Output Settings for All Ports</translation>
    </message>
    <message>
        <source>GGA Precision:</source>
        <translation>GGA Precision:</translation>
    </message>
    <message>
        <source>GGA Precision</source>
        <translation>GGA Precision</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Force NMEA Talker ID:</source>
        <translation>Force NMEA Talker ID:</translation>
    </message>
    <message>
        <source>Force NMEA Talker ID</source>
        <translation>Force NMEA Talker ID</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>GP</source>
        <translation>GP</translation>
    </message>
    <message>
        <source>MRV GGA Quality:</source>
        <translation>MRV GGA Quality:</translation>
    </message>
    <message>
        <source>MRV GGA Quality</source>
        <translation>MRV GGA Quality</translation>
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
        <translation>NMEA GGA Correction Age Scaling:</translation>
    </message>
    <message>
        <source>NMEA GGA Correction Age Scaling</source>
        <translation>NMEA GGA Correction Age Scaling</translation>
    </message>
    <message>
        <source>Unscaled</source>
        <translation>Unscaled</translation>
    </message>
    <message>
        <source>Scaled (/10)</source>
        <translation>Scaled (/10)</translation>
    </message>
    <message>
        <source>Scaled (/60)</source>
        <translation>Scaled (/60)</translation>
    </message>
    <message>
        <source>NMEA Standard Version:</source>
        <translation>NMEA Standard Version:</translation>
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
        <translation>MELVOX Physical Port Configuration</translation>
    </message>
    <message>
        <source>Configure Physical Port</source>
        <translation>Configure Physical Port</translation>
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
        <translation>Baud Rate:</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Baud Rate</translation>
    </message>
    <message>
        <source>Data Bits:</source>
        <translation>Data Bits:</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Data Bits</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>Parity:</source>
        <translation>Parity:</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parity</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Odd</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Even</translation>
    </message>
    <message>
        <source>Stop Bits:</source>
        <translation>Stop Bits:</translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation>Stop Bits</translation>
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
        <translation>Serial Mode:</translation>
    </message>
</context>
<context>
    <name>melvoxUiPortConfiguration</name>
    <message>
        <source>Port Configuration</source>
        <translation>Port Configuration</translation>
    </message>
    <message>
        <source>Port Settings</source>
        <translation>Port Settings</translation>
    </message>
    <message>
        <source>USB Mode:</source>
        <translation>USB Mode:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>USB Mode</source>
        <translation>USB Mode</translation>
    </message>
    <message>
        <source>Serial Port</source>
        <translation>Serial Port</translation>
    </message>
    <message>
        <source>Mass Storage</source>
        <translation>Mass Storage</translation>
    </message>
    <message>
        <source>Serial Port Configuration</source>
        <translation>Serial Port Configuration</translation>
    </message>
    <message>
        <source>Serial Ports</source>
        <translation>Serial Ports</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Baud Rate</source>
        <translation>Baud Rate</translation>
    </message>
    <message>
        <source>Data Bits</source>
        <translation>Data Bits</translation>
    </message>
    <message>
        <source>Parity</source>
        <translation>Parity</translation>
    </message>
    <message>
        <source>Stop Bits</source>
        <translation>Stop Bits</translation>
    </message>
    <message>
        <source>Serial Mode</source>
        <translation>Serial Mode</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Ethernet Virtual Ports</source>
        <translation>Ethernet Virtual Ports</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Remote Address</source>
        <translation>Remote Address</translation>
    </message>
    <message>
        <source>Remote Port</source>
        <translation>Remote Port</translation>
    </message>
    <message>
        <source>Local Port</source>
        <translation>Local Port</translation>
    </message>
</context>
<context>
    <name>melvoxUiPpsConfiguration</name>
    <message>
        <source>1PPS Settings</source>
        <translation>1PPS Settings</translation>
    </message>
    <message>
        <source>1PPS</source>
        <translation>1PPS</translation>
    </message>
    <message>
        <source>Polarity:</source>
        <translation>Polarity:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>1PPS Polarity</source>
        <translation>1PPS Polarity</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negative</translation>
    </message>
    <message>
        <source>Positive</source>
        <translation>Positive</translation>
    </message>
    <message>
        <source>Pulse and Delays</source>
        <translation>Pulse and Delays</translation>
    </message>
    <message>
        <source>Pulse Width (ns):</source>
        <translation>Pulse Width (ns):</translation>
    </message>
    <message>
        <source>1PPS Pulse Width</source>
        <translation>1PPS Pulse Width</translation>
    </message>
    <message>
        <source>Interval (ms):</source>
        <translation>Interval (ms):</translation>
    </message>
    <message>
        <source>1PPS Interval</source>
        <translation>1PPS Interval</translation>
    </message>
    <message>
        <source>Signal Delay (ms):</source>
        <translation>Signal Delay (ms):</translation>
    </message>
    <message>
        <source>1PPS Signal Delay</source>
        <translation>1PPS Signal Delay</translation>
    </message>
    <message>
        <source>Chip Delay (ns):</source>
        <translation>Chip Delay (ns):</translation>
    </message>
    <message>
        <source>1PPS Chip Delay</source>
        <translation>1PPS Chip Delay</translation>
    </message>
</context>
<context>
    <name>melvoxUiProfileDumpDialog</name>
    <message>
        <source>Dump MELVOX Settings to File</source>
        <translation>Dump MELVOX Settings to File</translation>
    </message>
    <message>
        <source>Dumping to:</source>
        <translation>Dumping to:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
</context>
<context>
    <name>melvoxUiProfileLoadDialog</name>
    <message>
        <source>Load MELVOX Profile From File</source>
        <translation>Load MELVOX Profile From File</translation>
    </message>
    <message>
        <source>Loading From</source>
        <translation>Loading From</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
</context>
<context>
    <name>melvoxUiReceiverInformation</name>
    <message>
        <source>Receiver Information</source>
        <translation>Receiver Information</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>PVT</source>
        <translation>PVT</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Other</translation>
    </message>
    <message>
        <source>Receiver ID</source>
        <translation>Receiver ID</translation>
    </message>
    <message>
        <source>Serial Number:</source>
        <translation>Serial Number:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Model:</translation>
    </message>
    <message>
        <source>Firmware Version:</source>
        <translation>Firmware Version:</translation>
    </message>
    <message>
        <source>Iridium Antenna IMEI Number:</source>
        <translation>Iridium Antenna IMEI Number:</translation>
    </message>
    <message>
        <source>Provisioning Status:</source>
        <translation>Provisioning Status:</translation>
    </message>
    <message>
        <source>Receiver Component Versions</source>
        <translation>Receiver Component Versions</translation>
    </message>
    <message>
        <source>LTE Modem</source>
        <translation>LTE Modem</translation>
    </message>
    <message>
        <source>Modem Status:</source>
        <translation>Modem Status:</translation>
    </message>
    <message>
        <source>Network Status:</source>
        <translation>Network Status:</translation>
    </message>
    <message>
        <source>RSSI:</source>
        <translation>RSSI:</translation>
    </message>
    <message>
        <source>Toggle LTE Modem</source>
        <translation>Toggle LTE Modem</translation>
    </message>
</context>
<context>
    <name>melvoxUiRestart</name>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Warm Restart</source>
        <translation>Warm Restart</translation>
    </message>
    <message>
        <source>Clear Ephemeris and Restart:</source>
        <translation>Clear Ephemeris and Restart:</translation>
    </message>
    <message>
        <source>Cold Restart</source>
        <translation>Cold Restart</translation>
    </message>
    <message>
        <source>Use Built-In Almanac:</source>
        <translation>Use Built-In Almanac:</translation>
    </message>
    <message>
        <source>Use Built-In Almanac</source>
        <translation>Use Built-In Almanac</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Clear Position, Almanac, Ephemeris, Time, and Restart:</source>
        <translation>Clear Position, Almanac, Ephemeris, Time, and Restart:</translation>
    </message>
</context>
<context>
    <name>melvoxUiRtkConfiguration</name>
    <message>
        <source>RTK Configuration</source>
        <translation>RTK Configuration</translation>
    </message>
    <message>
        <source>Antenna Alignment Configuration</source>
        <translation>Antenna Alignment Configuration</translation>
    </message>
    <message>
        <source>Antenna Alignment:</source>
        <translation>Antenna Alignment:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Antenna Alignment</source>
        <translation>Antenna Alignment</translation>
    </message>
    <message>
        <source>Lateral</source>
        <translation>Lateral</translation>
    </message>
    <message>
        <source>Longitudinal</source>
        <translation>Longitudinal</translation>
    </message>
    <message>
        <source>User-Specified</source>
        <translation>User-Specified</translation>
    </message>
    <message>
        <source>User Angle:</source>
        <translation>User Angle:</translation>
    </message>
    <message>
        <source>MBRTK User Angle</source>
        <translation>MBRTK User Angle</translation>
    </message>
</context>
<context>
    <name>melvoxUiSettingsProfiles</name>
    <message>
        <source>Settings Profiles</source>
        <translation>Settings Profiles</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modified</translation>
    </message>
    <message>
        <source>Save New Profile</source>
        <translation>Save New Profile</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>New Profile Name</source>
        <translation>New Profile Name</translation>
    </message>
</context>
<context>
    <name>melvoxUiSolutionControl</name>
    <message>
        <source>Solution Control</source>
        <translation>Solution Control</translation>
    </message>
    <message>
        <source>Position Solution</source>
        <translation>Position Solution</translation>
    </message>
    <message>
        <source>Elevation Mask:</source>
        <translation>Elevation Mask:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Elevation Mask</source>
        <translation>Elevation Mask</translation>
    </message>
    <message>
        <source>Maximum PDOP:</source>
        <translation>Maximum PDOP:</translation>
    </message>
    <message>
        <source>Maximum PDOP</source>
        <translation>Maximum PDOP</translation>
    </message>
    <message>
        <source>Geoidal Model:</source>
        <translation>Geoidal Model:</translation>
    </message>
    <message>
        <source>Geoidal Model</source>
        <translation>Geoidal Model</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>EGM84</source>
        <translation>EGM84</translation>
    </message>
    <message>
        <source>LEO OTI Configuration</source>
        <translation>LEO OTI Configuration</translation>
    </message>
    <message>
        <source>LEO OTI Mode:</source>
        <translation>LEO OTI Mode:</translation>
    </message>
    <message>
        <source>LEO OTI Mode</source>
        <translation>LEO OTI Mode</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Protocol:</source>
        <translation>Protocol:</translation>
    </message>
    <message>
        <source>LEO OTI Protocol</source>
        <translation>LEO OTI Protocol</translation>
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
        <translation>Corrections Inputs</translation>
    </message>
    <message>
        <source>Enabled:</source>
        <translation>Enabled:</translation>
    </message>
    <message>
        <source>Maximum Differential Age (seconds):</source>
        <translation>Maximum Differential Age (seconds):</translation>
    </message>
    <message>
        <source>RTCM V2/V3</source>
        <translation>RTCM V2/V3</translation>
    </message>
    <message>
        <source>RTCM V2/V3 Enabled</source>
        <translation>RTCM V2/V3 Enabled</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>RTCM 1,9 Max Diff Age</source>
        <translation>RTCM 1,9 Max Diff Age</translation>
    </message>
    <message>
        <source>SBAS</source>
        <translation>SBAS</translation>
    </message>
    <message>
        <source>SBAS Enabled</source>
        <translation>SBAS Enabled</translation>
    </message>
    <message>
        <source>SBAS Max Diff Age</source>
        <translation>SBAS Max Diff Age</translation>
    </message>
    <message>
        <source>LEO</source>
        <translation>LEO</translation>
    </message>
    <message>
        <source>LEO Enabled</source>
        <translation>LEO Enabled</translation>
    </message>
    <message>
        <source>MRV Max Diff Age</source>
        <translation>MRV Max Diff Age</translation>
    </message>
</context>
<context>
    <name>melvoxUiUsbFirmwareSelectDialog</name>
    <message>
        <source>Select Firmware Package</source>
        <translation>Select Firmware Package</translation>
    </message>
    <message>
        <source>Firmware Packages</source>
        <translation>Firmware Packages</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
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
        <translation>0 firmware package(s) found</translation>
    </message>
</context>
<context>
    <name>melvoxUiUsbProfileListDialog</name>
    <message>
        <source>Select MELVOX Profile File</source>
        <translation>Select MELVOX Profile File</translation>
    </message>
    <message>
        <source>Profile Files</source>
        <translation>Profile Files</translation>
    </message>
    <message>
        <source>Filename</source>
        <translation>Filename</translation>
    </message>
</context>
<context>
    <name>melvoxUiUsbWebUiSelectDialog</name>
    <message>
        <source>Select Web Interface Package</source>
        <translation>Select Web Interface Package</translation>
    </message>
    <message>
        <source>Web Interface Packages</source>
        <translation>Web Interface Packages</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
</context>
<context>
    <name>melvoxUiVHDInfo</name>
    <message>
        <source>VHD Info</source>
        <translation>VHD Info</translation>
    </message>
    <message>
        <source>VHD Summary</source>
        <translation>VHD Summary</translation>
    </message>
    <message>
        <source>Corrected Heading:</source>
        <translation>Corrected Heading:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Attitude:</source>
        <translation>Attitude:</translation>
    </message>
    <message>
        <source>Baseline:</source>
        <translation>Baseline:</translation>
    </message>
    <message>
        <source>Heading RMS:</source>
        <translation>Heading RMS:</translation>
    </message>
    <message>
        <source>Raw Heading:</source>
        <translation>Raw Heading:</translation>
    </message>
</context>
<context>
    <name>melvoxUiVirtualPortConfigDialog</name>
    <message>
        <source>MELVOX Virtual Port Configuration</source>
        <translation>MELVOX Virtual Port Configuration</translation>
    </message>
    <message>
        <source>Configure Virtual Port</source>
        <translation>Configure Virtual Port</translation>
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
        <translation>Enabled:</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Mode:</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>UDP (Restrict)</source>
        <translation>UDP (Restrict)</translation>
    </message>
    <message>
        <source>TCP</source>
        <translation>TCP</translation>
    </message>
    <message>
        <source>Remote Address:</source>
        <translation>Remote Address:</translation>
    </message>
    <message>
        <source>Ethernet Virtual Port IP Address</source>
        <translation>Ethernet Virtual Port IP Address</translation>
    </message>
    <message>
        <source>Remote Port:</source>
        <translation>Remote Port:</translation>
    </message>
    <message>
        <source>Ethernet Virtual Port Remote Port</source>
        <translation>Ethernet Virtual Port Remote Port</translation>
    </message>
    <message>
        <source>Local Port:</source>
        <translation>Local Port:</translation>
    </message>
    <message>
        <source>Ethernet Virtual Port Local Port</source>
        <translation>Ethernet Virtual Port Local Port</translation>
    </message>
</context>
<context>
    <name>melvoxUiWebInterface</name>
    <message>
        <source>Web Interface</source>
        <translation>Web Interface</translation>
    </message>
    <message>
        <source>Web Interface Settings</source>
        <translation>Web Interface Settings</translation>
    </message>
    <message>
        <source>Web Interface Enabled:</source>
        <translation>Web Interface Enabled:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
    <message>
        <source>Web Interface Enabled</source>
        <translation>Web Interface Enabled</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Web Interface can only be enabled/disabled when connected via a physical port (COM or USB).</source>
        <translation>Web Interface can only be enabled/disabled when connected via a physical port (COM or USB).</translation>
    </message>
    <message>
        <source>Upload Interface Files</source>
        <translation>Upload Interface Files</translation>
    </message>
    <message>
        <source>Selected Package:</source>
        <translation>Selected Package:</translation>
    </message>
    <message>
        <source>Select Package</source>
        <translation>Select Package</translation>
    </message>
    <message>
        <source>Cancel Upload</source>
        <translation>Cancel Upload</translation>
    </message>
    <message>
        <source>Upload Progress</source>
        <translation>Upload Progress</translation>
    </message>
    <message>
        <source>0.00%</source>
        <translation>0.00%</translation>
    </message>
    <message>
        <source>Note: Uploading a MELVOX Web Interface can take up to 5 minutes and will interrupt the functionality of the receiver.  During the upload, the receiver will be restarted twice.</source>
        <translation>Note: Uploading a MELVOX Web Interface can take up to 5 minutes and will interrupt the functionality of the receiver.  During the upload, the receiver will be restarted twice.</translation>
    </message>
</context>
<context>
    <name>melvoxUiWiFiPasskeyDialog</name>
    <message>
        <source>MELVOX WiFi Passkey</source>
        <translation>MELVOX WiFi Passkey</translation>
    </message>
    <message>
        <source>Passkey:</source>
        <translation>Passkey:</translation>
    </message>
    <message>
        <source>WiFi Passkey</source>
        <translation>WiFi Passkey</translation>
    </message>
</context>
<context>
    <name>melvoxVersionWarnDialog</name>
    <message>
        <source>Melvox Firmware Version Warning</source>
        <translation>Melvox Firmware Version Warning</translation>
    </message>
    <message>
        <source>This receiver is running an older firmware version.
Please upgrade the receiver to the following firmware version or later.</source>
        <translation>This receiver is running an older firmware version.
Please upgrade the receiver to the following firmware version or later.</translation>
    </message>
    <message>
        <source>Minimum Version:</source>
        <translation>Minimum Version:</translation>
    </message>
    <message>
        <source>1.13.15</source>
        <translation>1.13.15</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Current Version:</translation>
    </message>
    <message>
        <source>--</source>
        <translation>--</translation>
    </message>
</context>
</TS>
