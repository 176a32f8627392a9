<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
    <context>
        <name>ConfirmPassPanelController</name>
        <message>
            <source>Password</source>
            <translation>パスワード</translation>
        </message>
        <message>
            <source>&amp;Password:</source>
            <translation>パスワード(&amp;P):</translation>
        </message>
    </context>
    <context>
        <name>KAppController</name>
        <message>
            <source>&amp;Quit</source>
            <translation>終了(&amp;Q)</translation>
        </message>
        <message>
            <source>&amp;About Penwick</source>
            <translation>Penwick について(&amp;A)</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>ファイル(&amp;F)</translation>
        </message>
        <message>
            <source>&amp;Window</source>
            <translation>ウインドウ(&amp;W)</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>ヘルプ(&amp;H)</translation>
        </message>
        <message>
            <source>The entries of %1 could not be read.</source>
            <translation>%1 のデータを読み込めませんでした。</translation>
        </message>
        <message>
            <source>%1

The month is shown empty and cannot be changed, and its file "%2" is left exactly as it is. The other months work as usual.</source>
            <translation>%1

この月は空のまま表示され、変更できません。ファイル「%2」はそのまま残してあります。ほかの月はいつも通り使えます。</translation>
        </message>
        <message>
            <source>The entries of %1 could not be saved.</source>
            <translation>%1 のデータを保存できませんでした。</translation>
        </message>
        <message>
            <source>%1

The changes are kept in memory and Penwick tries again at the next save. Free some disk space or check the permissions of "%2", and keep Penwick open until it has saved.</source>
            <translation>%1

変更はメモリーに残してあり、次の保存で再び書き込みます。ディスクの空きを作るか「%2」のアクセス権を確かめ、保存が済むまで Penwick を終了しないでください。</translation>
        </message>
        <message>
            <source>Penwick</source>
            <translation>Penwick</translation>
        </message>
        <message>
            <source>About Penwick</source>
            <translation>Penwick について</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;A household account book.&lt;/p&gt;&lt;p&gt;Your entries are kept month by month in the data folder:&lt;br&gt;%2&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;家計簿アプリケーション&lt;/p&gt;&lt;p&gt;データは月ごとに次のデータフォルダに保存されています:&lt;br&gt;%2&lt;/p&gt;</translation>
        </message>
    </context>
    <context>
        <name>KController</name>
        <message>
            <source>the file holds %1/%2 instead</source>
            <translation>ファイルの中身は %1年%2月のデータです</translation>
        </message>
        <message>
            <source>The file could not be read, so it is left as it is. Changes to this month are not saved.</source>
            <translation>ファイルを読み込めなかったため、そのまま残してあります。この月への変更は保存されません。</translation>
        </message>
        <message>
            <source>The file of this month could not be read, so nothing can be added to it.</source>
            <translation>この月のファイルを読み込めなかったため、データを追加できません。</translation>
        </message>
        <message>
            <source>The file of this month could not be read, so no entry can be moved into it.</source>
            <translation>この月のファイルを読み込めなかったため、データを移動できません。</translation>
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
            <translation>パスワードを入力してください</translation>
        </message>
        <message>
            <source>Password is wrong</source>
            <translation>パスワードが違います</translation>
        </message>
        <message>
            <source>Old password is wrong</source>
            <translation>古いパスワードが違います</translation>
        </message>
        <message>
            <source>New password is wrong</source>
            <translation>新しいパスワードが一致しません</translation>
        </message>
    </context>
    <context>
        <name>SetPassPanelController</name>
        <message>
            <source>Change Password</source>
            <translation>パスワードの変更</translation>
        </message>
        <message>
            <source>&amp;Old password:</source>
            <translation>古いパスワード(&amp;O):</translation>
        </message>
        <message>
            <source>&amp;New password:</source>
            <translation>新しいパスワード(&amp;N):</translation>
        </message>
        <message>
            <source>&amp;Repeat new password:</source>
            <translation>新しいパスワードの確認(&amp;R):</translation>
        </message>
        <message>
            <source>Passwords cannot be encrypted on this system.</source>
            <translation>このシステムではパスワードを暗号化できません。</translation>
        </message>
    </context>
    <context>
        <name>SingleInstance</name>
        <message>
            <source>Penwick is already running on the data folder "%1" but does not answer.</source>
            <translation>Penwick はデータフォルダ「%1」ですでに起動していますが、応答がありません。</translation>
        </message>
        <message>
            <source>Penwick could not wait for later launches: %1</source>
            <translation>Penwick は後から起動された要求を受け付けられませんでした: %1</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>A household account book.</source>
            <translation>家計簿アプリケーション。</translation>
        </message>
        <message>
            <source>Month files to show (Data_YEAR_MONTH.Penwick).</source>
            <translation>表示する月のファイル (Data_年_月.Penwick)。</translation>
        </message>
        <message>
            <source>%1 is not a month file of Penwick; it is left alone.</source>
            <translation>%1 は Penwick の月のファイルではないため、開きません。</translation>
        </message>
    </context>
</TS>
