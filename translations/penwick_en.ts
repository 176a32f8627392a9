<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
    <context>
        <name>ConfirmPassPanelController</name>
        <message>
            <source>Password</source>
            <translation>Password</translation>
        </message>
        <message>
            <source>&amp;Password:</source>
            <translation>&amp;Password:</translation>
        </message>
    </context>
    <context>
        <name>KAppController</name>
        <message>
            <source>&amp;Quit</source>
            <translation>&amp;Quit</translation>
        </message>
        <message>
            <source>&amp;About Penwick</source>
            <translation>&amp;About Penwick</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;File</translation>
        </message>
        <message>
            <source>&amp;Window</source>
            <translation>&amp;Window</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Help</translation>
        </message>
        <message>
            <source>The entries of %1 could not be read.</source>
            <translation>The entries of %1 could not be read.</translation>
        </message>
        <message>
            <source>%1

The month is shown empty and cannot be changed, and its file "%2" is left exactly as it is. The other months work as usual.</source>
            <translation>%1

The month is shown empty and cannot be changed, and its file "%2" is left exactly as it is. The other months work as usual.</translation>
        </message>
        <message>
            <source>The entries of %1 could not be saved.</source>
            <translation>The entries of %1 could not be saved.</translation>
        </message>
        <message>
            <source>%1

The changes are kept in memory and Penwick tries again at the next save. Free some disk space or check the permissions of "%2", and keep Penwick open until it has saved.</source>
            <translation>%1

The changes are kept in memory and Penwick tries again at the next save. Free some disk space or check the permissions of "%2", and keep Penwick open until it has saved.</translation>
        </message>
        <message>
            <source>Penwick</source>
            <translation>Penwick</translation>
        </message>
        <message>
            <source>About Penwick</source>
            <translation>About Penwick</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;A household account book.&lt;/p&gt;&lt;p&gt;Your entries are kept month by month in the data folder:&lt;br&gt;%2&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;A household account book.&lt;/p&gt;&lt;p&gt;Your entries are kept month by month in the data folder:&lt;br&gt;%2&lt;/p&gt;</translation>
        </message>
    </context>
    <context>
        <name>KController</name>
        <message>
            <source>the file holds %1/%2 instead</source>
            <translation>the file holds %1/%2 instead</translation>
        </message>
        <message>
            <source>The file could not be read, so it is left as it is. Changes to this month are not saved.</source>
            <translation>The file could not be read, so it is left as it is. Changes to this month are not saved.</translation>
        </message>
        <message>
            <source>The file of this month could not be read, so nothing can be added to it.</source>
            <translation>The file of this month could not be read, so nothing can be added to it.</translation>
        </message>
        <message>
            <source>The file of this month could not be read, so no entry can be moved into it.</source>
            <translation>The file of this month could not be read, so no entry can be moved into it.</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>DataFolderName</source>
            <translation>PenwickData</translation>
        </message>
    </context>
    <context>
        <name>PasswordPanels</name>
        <message>
            <source>Enter your password</source>
            <translation>Enter your password</translation>
        </message>
        <message>
            <source>Password is wrong</source>
            <translation>Password is wrong</translation>
        </message>
        <message>
            <source>Old password is wrong</source>
            <translation>Old password is wrong</translation>
        </message>
        <message>
            <source>New password is wrong</source>
            <translation>New password is wrong</translation>
        </message>
    </context>
    <context>
        <name>SetPassPanelController</name>
        <message>
            <source>Change Password</source>
            <translation>Change Password</translation>
        </message>
        <message>
            <source>&amp;Old password:</source>
            <translation>&amp;Old password:</translation>
        </message>
        <message>
            <source>&amp;New password:</source>
            <translation>&amp;New password:</translation>
        </message>
        <message>
            <source>&amp;Repeat new password:</source>
            <translation>&amp;Repeat new password:</translation>
        </message>
        <message>
            <source>Passwords cannot be encrypted on this system.</source>
            <translation>Passwords cannot be encrypted on this system.</translation>
        </message>
    </context>
    <context>
        <name>SingleInstance</name>
        <message>
            <source>Penwick is already running on the data folder "%1" but does not answer.</source>
            <translation>Penwick is already running on the data folder "%1" but does not answer.</translation>
        </message>
        <message>
            <source>Penwick could not wait for later launches: %1</source>
            <translation>Penwick could not wait for later launches: %1</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>A household account book.</source>
            <translation>A household account book.</translation>
        </message>
        <message>
            <source>Month files to show (Data_YEAR_MONTH.Penwick).</source>
            <translation>Month files to show (Data_YEAR_MONTH.Penwick).</translation>
        </message>
        <message>
            <source>%1 is not a month file of Penwick; it is left alone.</source>
            <translation>%1 is not a month file of Penwick; it is left alone.</translation>
        </message>
    </context>
</TS>
