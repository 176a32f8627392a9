<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
    <context>
        <name>BalanceWinController</name>
        <message>
            <source>Balance</source>
            <translation>残高</translation>
        </message>
        <message>
            <source>Spending</source>
            <translation>支出</translation>
        </message>
        <message>
            <source>Income</source>
            <translation>収入</translation>
        </message>
        <message>
            <source>Budget</source>
            <translation>予算</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>残り</translation>
        </message>
    </context>
    <context>
        <name>BudgetAmount</name>
        <message>
            <source>&quot;%1&quot; is not an amount.</source>
            <translation>「%1」は金額ではありません。</translation>
        </message>
        <message>
            <source>A budget cannot be below zero.</source>
            <translation>予算を0未満にはできません。</translation>
        </message>
    </context>
    <context>
        <name>BudgetBook</name>
        <message>
            <source>The budget file %1 cannot be read (%2); mend or remove it first.</source>
            <translation>予算ファイル %1 を読み込めません（%2）。先に修復するか削除してください。</translation>
        </message>
        <message>
            <source>Change of Budgets</source>
            <translation>予算の変更</translation>
        </message>
    </context>
    <context>
        <name>BudgetFile</name>
        <message>
            <source>It holds no dictionary of budgets.</source>
            <translation>予算の辞書がありません。</translation>
        </message>
        <message>
            <source>Its budgets by category are not a list.</source>
            <translation>分類ごとの予算がリストになっていません。</translation>
        </message>
        <message>
            <source>A budget of a category cannot be read.</source>
            <translation>分類の予算を読み込めません。</translation>
        </message>
        <message>
            <source>The budget of all spending cannot be read.</source>
            <translation>支出全体の予算を読み込めません。</translation>
        </message>
    </context>
    <context>
        <name>BudgetPane</name>
        <message>
            <source>Budget</source>
            <translation>予算</translation>
        </message>
        <message>
            <source>Edit Budgets…</source>
            <translation>予算を編集…</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>残り</translation>
        </message>
        <message>
            <source>All spending</source>
            <translation>支出全体</translation>
        </message>
        <message>
            <source>The budgets cannot be read: %1</source>
            <translation>予算を読み込めません: %1</translation>
        </message>
        <message>
            <source>No budgets set.</source>
            <translation>予算は設定されていません。</translation>
        </message>
        <message>
            <source>%1 spent of %2 (%3 %)</source>
            <translation>%2 のうち %1 を支出（%3 %）</translation>
        </message>
        <message>
            <source>%1 spent of nothing</source>
            <translation>予算なしで %1 を支出</translation>
        </message>
        <message>
            <source>This month: %1; carried over: %2</source>
            <translation>今月分: %1、繰り越し: %2</translation>
        </message>
        <message>
            <source>Spent</source>
            <translation>支出</translation>
        </message>
    </context>
    <context>
        <name>BudgetsDialog</name>
        <message>
            <source>Budgets</source>
            <translation>予算</translation>
        </message>
        <message>
            <source>Leave an amount empty for no budget. What is left of a budget that rolls over, or what it overspent, goes into the next month&apos;s.</source>
            <translation>予算を設けない分類は金額を空欄にしてください。繰り越す予算の残り（または超過分）は翌月の予算に加わります。</translation>
        </message>
        <message>
            <source>The budgets cannot be read, so they cannot be changed: %1</source>
            <translation>予算を読み込めないため、変更できません: %1</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Every Month</source>
            <translation>毎月</translation>
        </message>
        <message>
            <source>%1 %2</source>
            <translation>%2年%1</translation>
        </message>
        <message>
            <source>Roll Over</source>
            <translation>繰り越し</translation>
        </message>
        <message>
            <source>All spending</source>
            <translation>支出全体</translation>
        </message>
        <message>
            <source>Rolling over since %1/%2</source>
            <translation>%2年%1月から繰り越し</translation>
        </message>
        <message>
            <source>The budgets could not be saved: %1</source>
            <translation>予算を保存できませんでした: %1</translation>
        </message>
    </context>
    <context>
        <name>CheckPopUpButton</name>
        <message>
            <source>Select All</source>
            <translation>すべて選択</translation>
        </message>
        <message>
            <source>Clear Selection</source>
            <translation>選択を解除</translation>
        </message>
        <message>
            <source>%1: All</source>
            <translation>%1: すべて</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <translation>%1: %2</translation>
        </message>
        <message numerus="yes">
            <source>%1: %n selected</source>
            <translation>
                <numerusform>%1: %n 件を選択</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>CircleGraphView</name>
        <message>
            <source>No spending to show for this month</source>
            <translation>今月は表示する支出がありません</translation>
        </message>
    </context>
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
        <name>ConversionJournal</name>
        <message>
            <source>The record of an unfinished change of the lists, %1, cannot be read.</source>
            <translation>終わっていないリスト変更の記録 %1 を読み込めません。</translation>
        </message>
    </context>
    <context>
        <name>DataListTableModel</name>
        <message>
            <source>%1/%2</source>
            <comment>month/day</comment>
            <translation>%1/%2</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>年</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>月</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>日</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>内容</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Payment method</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>Change of %1</source>
            <translation>%1の変更</translation>
        </message>
    </context>
    <context>
        <name>GraphCategoryModel</name>
        <message>
            <source>%1 %</source>
            <translation>%1 %</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Share</source>
            <translation>割合</translation>
        </message>
    </context>
    <context>
        <name>GraphWinController</name>
        <message>
            <source>Charts</source>
            <translation>グラフ</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>ファイル(&amp;F)</translation>
        </message>
        <message>
            <source>&amp;Print…</source>
            <translation>印刷…(&amp;P)</translation>
        </message>
        <message>
            <source>Export as P&amp;DF…</source>
            <translation>PDFとして書き出す…(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>閉じる(&amp;C)</translation>
        </message>
        <message>
            <source>Pie chart</source>
            <translation>円グラフ</translation>
        </message>
        <message>
            <source>Bar chart</source>
            <translation>棒グラフ</translation>
        </message>
        <message>
            <source>Line chart</source>
            <translation>折れ線グラフ</translation>
        </message>
        <message>
            <source>Show one month fewer</source>
            <translation>表示する月を1つ減らす</translation>
        </message>
        <message>
            <source>Show one month more</source>
            <translation>表示する月を1つ増やす</translation>
        </message>
        <message>
            <source>&amp;Year</source>
            <translation>年(&amp;Y)</translation>
        </message>
        <message>
            <source>&amp;Month</source>
            <translation>月(&amp;M)</translation>
        </message>
        <message>
            <source>Previous month</source>
            <translation>前の月</translation>
        </message>
        <message>
            <source>Next month</source>
            <translation>次の月</translation>
        </message>
        <message>
            <source>Chart %1-%2.pdf</source>
            <translation>グラフ %1-%2.pdf</translation>
        </message>
        <message>
            <source>Export as PDF</source>
            <translation>PDFとして書き出す</translation>
        </message>
        <message>
            <source>PDF files (*.pdf)</source>
            <translation>PDFファイル (*.pdf)</translation>
        </message>
        <message>
            <source>MMMM yyyy</source>
            <comment>date format of the printed heading</comment>
            <translation>yyyy年M月</translation>
        </message>
        <message>
            <source>%1 — %2</source>
            <comment>printed heading: month, chart</comment>
            <translation>%1 — %2</translation>
        </message>
        <message>
            <source>B&amp;udget</source>
            <translation>予算(&amp;U)</translation>
        </message>
        <message>
            <source>Draw each category&apos;s budget as a dashed line</source>
            <translation>各分類の予算を破線で描く</translation>
        </message>
    </context>
    <context>
        <name>InputRow</name>
        <message>
            <source>Month, row %1</source>
            <translation>%1行目の月</translation>
        </message>
        <message>
            <source>Day, row %1</source>
            <translation>%1行目の日</translation>
        </message>
        <message>
            <source>Category, row %1</source>
            <translation>%1行目の分類</translation>
        </message>
        <message>
            <source>Details, row %1</source>
            <translation>%1行目の内容</translation>
        </message>
        <message>
            <source>Amount, row %1</source>
            <translation>%1行目の金額</translation>
        </message>
        <message>
            <source>An amount, or a sum such as 1,200+350 or 3*450.</source>
            <translation>金額、または 1,200+350 や 3*450 のような計算式。</translation>
        </message>
        <message>
            <source>Payway, row %1</source>
            <translation>%1行目の支払い方法</translation>
        </message>
    </context>
    <context>
        <name>InputWinController</name>
        <message>
            <source>Book Entries</source>
            <translation>記帳</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Book and Show &amp;List</source>
            <translation>記帳して一覧を表示(&amp;L)</translation>
        </message>
        <message>
            <source>&amp;Book</source>
            <translation>記帳(&amp;B)</translation>
        </message>
        <message>
            <source>Booking of an Entry</source>
            <translation>1件の記帳</translation>
        </message>
        <message>
            <source>Booking of %1 Entries</source>
            <translation>%1件の記帳</translation>
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
            <source>About Penwick</source>
            <translation>Penwick について</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;A household account book.&lt;/p&gt;&lt;p&gt;Your entries are kept month by month in the data folder:&lt;br&gt;%2&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;家計簿アプリケーション&lt;/p&gt;&lt;p&gt;データは月ごとに次のデータフォルダに保存されています:&lt;br&gt;%2&lt;/p&gt;</translation>
        </message>
        <message>
            <source>&amp;Input Window</source>
            <translation>入力ウインドウ(&amp;I)</translation>
        </message>
        <message>
            <source>&amp;List Window</source>
            <translation>一覧ウインドウ(&amp;L)</translation>
        </message>
        <message>
            <source>&amp;Graph Window</source>
            <translation>グラフウインドウ(&amp;G)</translation>
        </message>
        <message>
            <source>&amp;Balance Window</source>
            <translation>収支ウインドウ(&amp;B)</translation>
        </message>
        <message>
            <source>&amp;Preferences…</source>
            <translation>環境設定…(&amp;P)</translation>
        </message>
        <message>
            <source>A change of the category and payway lists could not be finished.</source>
            <translation>分類と支払い方法のリストの変更を完了できませんでした。</translation>
        </message>
        <message>
            <source>Not every change made before Penwick stopped could be brought back.</source>
            <translation>Penwick が終了する前の変更のうち、一部を戻せませんでした。</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>編集(&amp;E)</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>取り込み…(&amp;I)</translation>
        </message>
        <message>
            <source>B&amp;udgets…</source>
            <translation>予算(&amp;U)…</translation>
        </message>
        <message>
            <source>The schedules cannot be read.</source>
            <translation>定期項目を読み込めません。</translation>
        </message>
        <message>
            <source>The scheduled entries due could not be booked.</source>
            <translation>記帳日が来た定期項目を記帳できませんでした。</translation>
        </message>
        <message>
            <source>&amp;Schedules</source>
            <translation>定期項目(&amp;S)</translation>
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
            <source>The file of this month could not be read, so no entry can be moved into it.</source>
            <translation>この月のファイルを読み込めなかったため、データを移動できません。</translation>
        </message>
        <message>
            <source>An earlier change of the lists has not been finished yet.</source>
            <translation>前に行ったリストの変更がまだ終わっていません。</translation>
        </message>
        <message>
            <source>The entries of %1 cannot be read, so none of the stored entries has been renumbered and the lists are unchanged. Mend or remove the file %2 first.</source>
            <translation>%1 のデータを読み込めないため、保存されたデータの番号は付け直されず、リストも変わっていません。先にファイル %2 を直すか取り除いてください。</translation>
        </message>
        <message>
            <source>The entries of %1 could not be saved, so none of the stored entries has been renumbered and the lists are unchanged.</source>
            <translation>%1 のデータを保存できなかったため、保存されたデータの番号は付け直されず、リストも変わっていません。</translation>
        </message>
        <message>
            <source>%1 The change is completed the next time Penwick starts; until then no month is saved.</source>
            <translation>%1 変更は次に Penwick を起動したときに完了します。それまでどの月も保存されません。</translation>
        </message>
        <message>
            <source>A change of the category and payway lists was interrupted and could not be finished: %1</source>
            <translation>分類と支払い方法のリストの変更が中断され、完了できませんでした: %1</translation>
        </message>
        <message>
            <source>Nothing can be booked until the list file is mended. %1</source>
            <translation>リストのファイルを修復するまで記帳できません。%1</translation>
        </message>
        <message>
            <source>There is no month %1 in year %2.</source>
            <translation>%2 年に %1 月はありません。</translation>
        </message>
        <message>
            <source>The file of %1/%2 could not be read, so nothing can be added to it.</source>
            <translation>%2 年 %1 月のファイルを読み込めなかったため、追加できません。</translation>
        </message>
        <message>
            <source>The changes to %1/%2 could not be read back.</source>
            <translation>%2年%1月の変更を読み戻せませんでした。</translation>
        </message>
        <message>
            <source>The journal of changes %1 is damaged; it was kept as %2.</source>
            <translation>変更記録 %1 が壊れています。%2 として残しました。</translation>
        </message>
        <message>
            <source>The last change before Penwick stopped was being written at that moment and is not in the book.</source>
            <translation>Penwick が終了したとき最後の変更は書き込みの途中だったため、帳簿には入っていません。</translation>
        </message>
        <message>
            <source>Some of the changes brought back could not be written to their months yet; they stay safe in the journal.</source>
            <translation>戻した変更の一部はまだ月のファイルに書き込めていません。変更記録に安全に残っています。</translation>
        </message>
        <message>
            <source>The journal of changes %1 could not be removed, so none of the stored entries has been renumbered and the lists are unchanged.</source>
            <translation>変更記録 %1 を削除できなかったため、保存済みの記帳は番号を付け直しておらず、リストも変わっていません。</translation>
        </message>
        <message>
            <source>The file of %1/%2 could not be read, so the change cannot be taken back.</source>
            <translation>%2 年 %1 月のファイルを読み込めないため、この変更は取り消せません。</translation>
        </message>
        <message>
            <source>Change of Categories and Payways</source>
            <translation>分類と支払い方法の変更</translation>
        </message>
        <message>
            <source>The entries of %1/%2 were changed since, so the change of the lists cannot be taken back.</source>
            <translation>%2 年 %1 月の記帳がその後に変更されたため、分類と支払い方法の変更は取り消せません。</translation>
        </message>
        <message>
            <source>Taking back a change of the category and payway lists was cut short. The lists and the entries are as they were before it.</source>
            <translation>分類と支払い方法の変更の取り消しが途中で止まりました。分類、支払い方法、記帳はすべて取り消す前のままです。</translation>
        </message>
        <message>
            <source>The file was changed outside Penwick and cannot be read, so it is left as it is.</source>
            <translation>ファイルが Penwick の外で変更されて読み込めないため、そのまま残してあります。</translation>
        </message>
        <message>
            <source>A sync service left copies of files in the data folder.</source>
            <translation>同期サービスがデータフォルダにファイルのコピーを残しました。</translation>
        </message>
        <message>
            <source>Penwick does not read these files and leaves them as they are. Compare each with the month it names, copy over what is missing, then remove it:
%1</source>
            <translation>Penwick はこれらのファイルを読み込まず、そのまま残します。それぞれを名前の示す月と見比べ、足りないものを書き写してから削除してください:
%1</translation>
        </message>
        <message>
            <source>The file of %1 was removed from the data folder.</source>
            <translation>%1のファイルがデータフォルダから削除されました。</translation>
        </message>
        <message>
            <source>Not by Penwick, which keeps even an empty month as a file. The month stays as it is here and its file is written again at its next change. The file was &quot;%1&quot;.</source>
            <translation>Penwick による削除ではありません（Penwick は空の月もファイルとして残します）。この月はこちらではそのままで、次に変更したときにファイルを書き直します。ファイルは「%1」でした。</translation>
        </message>
        <message>
            <source>The file of %1 was changed outside Penwick and cannot be read.</source>
            <translation>%1のファイルが Penwick の外で変更され、読み込めません。</translation>
        </message>
        <message>
            <source>%1

The month stays as it is here, with your changes, and they replace the damaged file when it is saved.</source>
            <translation>%1

この月はこちらでの変更を含めてそのままです。保存すると、壊れたファイルはこちらの内容で置き換えられます。</translation>
        </message>
        <message>
            <source>Here: %1</source>
            <translation>こちら: %1</translation>
        </message>
        <message>
            <source>deleted</source>
            <translation>削除済み</translation>
        </message>
        <message>
            <source>There: %1</source>
            <translation>相手側: %1</translation>
        </message>
        <message>
            <source>The memo was changed on both; it now holds both texts.</source>
            <translation>メモが両方で変更されたため、両方の文章を残しました。</translation>
        </message>
        <message>
            <source>Entries of %1 were changed both here and on another computer.</source>
            <translation>%1の記帳が、こちらと別のコンピュータの両方で変更されました。</translation>
        </message>
        <message>
            <source>Both versions of each are kept in the month, nothing was thrown away. Look at these entries and delete the version that is wrong:

%1</source>
            <translation>どちらの版も月の中に残してあり、何も捨てていません。次の記帳を確認し、誤っている方を削除してください:

%1</translation>
        </message>
        <message>
            <source>The category and payway lists were rearranged on another computer.</source>
            <translation>分類と支払い方法のリストが別のコンピュータで並べ替えられました。</translation>
        </message>
        <message>
            <source>Its renumbered months are taken in as they arrive.</source>
            <translation>番号を振り直した月は、届きしだい読み込みます。</translation>
        </message>
        <message>
            <source>Its renumbered months are taken in as they arrive. Entries changed here in the meantime still carry the old numbers and may show another category or payway; look over: %1</source>
            <translation>番号を振り直した月は、届きしだい読み込みます。その間にこちらで変更した記帳は古い番号のままなので、別の分類や支払い方法が表示されることがあります。確認してください: %1</translation>
        </message>
        <message>
            <source>The data folder was changed on another computer.</source>
            <translation>データフォルダが別のコンピュータで変更されました。</translation>
        </message>
        <message numerus="yes">
            <source>Import of %n Entries</source>
            <translation>
                <numerusform>%n 件の取り込み</numerusform>
            </translation>
        </message>
        <message>
            <source>The import was cancelled; nothing was booked.</source>
            <translation>取り込みを中止しました。何も記帳していません。</translation>
        </message>
        <message>
            <source>An import is being booked.</source>
            <translation>取り込みを記帳しています。</translation>
        </message>
        <message>
            <source>The category and payway lists are being changed.</source>
            <translation>分類と支払い方法のリストを変更中です。</translation>
        </message>
        <message>
            <source>%1 The month is saved as soon as that is done.</source>
            <translation>%1終わり次第この月を保存します。</translation>
        </message>
        <message>
            <source>%1 Try again when that is done.</source>
            <translation>%1終わってからもう一度お試しください。</translation>
        </message>
        <message>
            <source>%1 was changed since, so the change of the lists cannot be taken back.</source>
            <translation>%1 がその後変更されたため、リストの変更を取り消せません。</translation>
        </message>
        <message>
            <source>%1 was changed since, so the change cannot be taken back.</source>
            <translation>%1 がその後変更されたため、この変更は取り消せません。</translation>
        </message>
        <message>
            <source>The file of %1/%2 could not be read, so nothing was booked.</source>
            <translation>%2年%1月のファイルを読み込めないため、何も記帳していません。</translation>
        </message>
        <message>
            <source>The entries could not be recorded, so nothing was booked.</source>
            <translation>項目を記録できなかったため、何も記帳していません。</translation>
        </message>
    </context>
    <context>
        <name>ListEditorModel</name>
        <message>
            <source>Double-click to choose another colour.</source>
            <translation>ダブルクリックすると別の色を選べます。</translation>
        </message>
        <message>
            <source>Colour</source>
            <translation>色</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>支払い方法</translation>
        </message>
    </context>
    <context>
        <name>ListWinController</name>
        <message>
            <source>&amp;Previous Month</source>
            <translation>前の月(&amp;P)</translation>
        </message>
        <message>
            <source>&amp;Next Month</source>
            <translation>次の月(&amp;N)</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>年</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>月</translation>
        </message>
        <message>
            <source>&amp;Edit Entries</source>
            <translation>データを編集(&amp;E)</translation>
        </message>
        <message>
            <source>Change entries in place; a changed month moves the entry</source>
            <translation>その場でデータを変更します。月を変えるとデータはその月へ移ります</translation>
        </message>
        <message>
            <source>&amp;New Entry…</source>
            <translation>新規データ…(&amp;N)</translation>
        </message>
        <message>
            <source>&amp;Delete Entries…</source>
            <translation>データを削除…(&amp;D)</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>編集</translation>
        </message>
        <message>
            <source>New Entry…</source>
            <translation>新規データ…</translation>
        </message>
        <message>
            <source>Delete…</source>
            <translation>削除…</translation>
        </message>
        <message>
            <source>Clear &amp;Search</source>
            <translation>検索を解除(&amp;S)</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>解除</translation>
        </message>
        <message>
            <source>Show every entry of the month</source>
            <translation>この月のデータをすべて表示</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>ファイル(&amp;F)</translation>
        </message>
        <message>
            <source>&amp;Print…</source>
            <translation>印刷…(&amp;P)</translation>
        </message>
        <message>
            <source>&amp;Export as PDF…</source>
            <translation>PDFとして書き出す…(&amp;E)</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>閉じる(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>編集(&amp;E)</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>表示(&amp;V)</translation>
        </message>
        <message>
            <source>%1 %2, closing on day %3</source>
            <translation>%2年%1 (%3日締め)</translation>
        </message>
        <message>
            <source>%1 %2</source>
            <translation>%2年%1</translation>
        </message>
        <message>
            <source>%1 – Entries</source>
            <translation>%1 – データ</translation>
        </message>
        <message>
            <source>Double-click a cell to change it. A changed month or year moves the entry there.</source>
            <translation>セルをダブルクリックすると変更できます。月や年を変えるとデータはそこへ移ります。</translation>
        </message>
        <message>
            <source>Delete Entries</source>
            <translation>データの削除</translation>
        </message>
        <message numerus="yes">
            <source>Delete %n selected entries?</source>
            <translation>
                <numerusform>選択した %n 件のデータを削除しますか?</numerusform>
            </translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Entries found by: %1</source>
            <translation>検索条件: %1</translation>
        </message>
        <message>
            <source>Export as PDF</source>
            <translation>PDFとして書き出す</translation>
        </message>
        <message>
            <source>PDF documents (*.pdf)</source>
            <translation>PDF書類 (*.pdf)</translation>
        </message>
        <message>
            <source>The PDF could not be written to %1.</source>
            <translation>PDF を %1 に書き出せませんでした。</translation>
        </message>
        <message>
            <source>Not saved: %1. Penwick tries again every 30 seconds and at every change.</source>
            <translation>未保存: %1。Penwick は 30 秒ごとと変更のたびに再試行します。</translation>
        </message>
        <message>
            <source>Edit &gt; Undo brings them back.</source>
            <translation>「編集」&gt;「取り消す」で元に戻せます。</translation>
        </message>
        <message>
            <source>Deletion of an Entry</source>
            <translation>記帳の削除</translation>
        </message>
        <message>
            <source>Deletion of %1 Entries</source>
            <translation>%1件の記帳の削除</translation>
        </message>
        <message>
            <source>Export as &amp;CSV</source>
            <translation>CSVとして書き出す(&amp;C)</translation>
        </message>
        <message>
            <source>The &amp;Month Shown…</source>
            <translation>表示中の月…(&amp;M)</translation>
        </message>
        <message>
            <source>The &amp;Year…</source>
            <translation>その年…(&amp;Y)</translation>
        </message>
        <message>
            <source>The &amp;Search Result…</source>
            <translation>検索結果…(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Everything…</source>
            <translation>すべて…(&amp;E)</translation>
        </message>
        <message>
            <source>Export as CSV</source>
            <translation>CSVとして書き出す</translation>
        </message>
        <message>
            <source>Nothing was exported: %1</source>
            <translation>何も書き出していません: %1</translation>
        </message>
        <message>
            <source>penwick-all</source>
            <translation>penwick-all</translation>
        </message>
        <message>
            <source>-search</source>
            <translation>-検索結果</translation>
        </message>
        <message>
            <source>CSV files (*.csv)</source>
            <translation>CSV ファイル (*.csv)</translation>
        </message>
        <message>
            <source>The CSV file could not be written to %1: %2</source>
            <translation>CSV ファイルを %1 に書き込めませんでした: %2</translation>
        </message>
        <message>
            <source>Make &amp;Recurring…</source>
            <translation>定期項目にする(&amp;R)…</translation>
        </message>
    </context>
    <context>
        <name>Localizable</name>
        <message>
            <source>DataFolderName</source>
            <translation>PenwickData</translation>
        </message>
        <message>
            <source>BarGraph Label Format</source>
            <translation>%1年%2月</translation>
        </message>
        <message>
            <source>LineGraph MonthLabel Format</source>
            <translation>%1月</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Input Data before Quit</source>
            <translation>終了する前に、入力した項目を記帳しますか?</translation>
        </message>
        <message>
            <source>Quit Input Alert</source>
            <translation>まだ記帳していない項目があります。記帳せずに終了すると、それらは失われます。</translation>
        </message>
        <message>
            <source>Input and Quit</source>
            <translation>記帳して終了</translation>
        </message>
        <message>
            <source>Quit without Quit</source>
            <translation>記帳せずに終了</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Data Category is not selected</source>
            <translation>分類が選ばれていない行があります。</translation>
        </message>
        <message>
            <source>Ignore unselected data</source>
            <translation>いま記帳すると、分類のない行は記帳されません。分類を選ぶか、ほかの行だけを記帳してください。</translation>
        </message>
        <message>
            <source>Select</source>
            <translation>分類を選ぶ</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>ほかの行を記帳</translation>
        </message>
        <message>
            <source>Balance of last month</source>
            <translation>先月の残高: %1</translation>
        </message>
        <message>
            <source>Income</source>
            <translation>収入</translation>
        </message>
    </context>
    <context>
        <name>MergeItemDialog</name>
        <message>
            <source>Delete Item</source>
            <translation>項目の削除</translation>
        </message>
        <message>
            <source>&lt;b&gt;Delete “%1”?&lt;/b&gt;&lt;br&gt;Entries booked under it, in every month, are kept and moved to another item.</source>
            <translation>&lt;b&gt;「%1」を削除しますか?&lt;/b&gt;&lt;br&gt;この項目で記帳されたデータは、すべての月で残され、別の項目へ移されます。</translation>
        </message>
        <message>
            <source>&amp;Move its entries to:</source>
            <translation>データの移動先(&amp;M):</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>削除(&amp;D)</translation>
        </message>
    </context>
    <context>
        <name>NumberUtility</name>
        <message>
            <source>Multiple Character</source>
            <translation>×</translation>
        </message>
    </context>
    <context>
        <name>PWKGraphView</name>
        <message>
            <source>%1 %</source>
            <translation>%1 %</translation>
        </message>
        <message>
            <source>%1, %2: %3 (%4)</source>
            <comment>category, month: amount (share of the month)</comment>
            <translation>%1（%2）：%3（%4）</translation>
        </message>
        <message>
            <source>%1: %2 (%3)</source>
            <comment>category: amount (share)</comment>
            <translation>%1：%2（%3）</translation>
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
        <name>PrefWinController</name>
        <message>
            <source>&amp;Appearance:</source>
            <translation>外観(&amp;A):</translation>
        </message>
        <message>
            <source>System looks as the desktop has it; Light and Dark use Penwick's own colours.</source>
            <translation>「システム」はデスクトップの外観に従い、「ライト」と「ダーク」は Penwick 独自の配色を使います。</translation>
        </message>
        <message>
            <source>Dark</source>
            <translation>ダーク</translation>
        </message>
        <message>
            <source>Light</source>
            <translation>ライト</translation>
        </message>
        <message>
            <source>System</source>
            <translation>システム</translation>
        </message>
        <message>
            <source>Preferences</source>
            <translation>環境設定</translation>
        </message>
        <message>
            <source>&lt;b&gt;Welcome to Penwick.&lt;/b&gt; Look through the categories and payways you will book entries under, and choose where your account book is kept. You can change all of this later in the preferences.</source>
            <translation>&lt;b&gt;Penwick へようこそ。&lt;/b&gt;記帳に使う分類と支払い方法を確かめ、家計簿を保存する場所を選んでください。これらはあとから環境設定でいつでも変えられます。</translation>
        </message>
        <message>
            <source>Drag a category to change the order. Income always comes last and is not edited here.</source>
            <translation>分類をドラッグすると順番を変えられます。収入は常に最後で、ここでは編集できません。</translation>
        </message>
        <message>
            <source>&amp;Categories</source>
            <translation>分類(&amp;C)</translation>
        </message>
        <message>
            <source>Drag a payway to change the order.</source>
            <translation>支払い方法をドラッグすると順番を変えられます。</translation>
        </message>
        <message>
            <source>&amp;Payways</source>
            <translation>支払い方法(&amp;P)</translation>
        </message>
        <message>
            <source>&amp;General</source>
            <translation>一般(&amp;G)</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>追加(&amp;A)</translation>
        </message>
        <message>
            <source>&amp;Delete…</source>
            <translation>削除…(&amp;D)</translation>
        </message>
        <message>
            <source>C&amp;olour…</source>
            <translation>色…(&amp;O)</translation>
        </message>
        <message>
            <source>C&amp;hoose…</source>
            <translation>選択…(&amp;H)</translation>
        </message>
        <message>
            <source>Data folder:</source>
            <translation>データフォルダ:</translation>
        </message>
        <message>
            <source>&amp;Input window</source>
            <translation>入力ウインドウ(&amp;I)</translation>
        </message>
        <message>
            <source>&amp;List window</source>
            <translation>一覧ウインドウ(&amp;L)</translation>
        </message>
        <message>
            <source>G&amp;raph window</source>
            <translation>グラフウインドウ(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Balance window</source>
            <translation>収支ウインドウ(&amp;B)</translation>
        </message>
        <message>
            <source>Open at start:</source>
            <translation>起動時に開く:</translation>
        </message>
        <message>
            <source>Close each &amp;month on day</source>
            <translation>毎月の締め日(&amp;M)</translation>
        </message>
        <message>
            <source>Entries after this day count towards the next month.</source>
            <translation>この日より後のデータは翌月分として数えます。</translation>
        </message>
        <message>
            <source>Closing day:</source>
            <translation>締め日:</translation>
        </message>
        <message>
            <source>Presses OK</source>
            <translation>OK を押す</translation>
        </message>
        <message>
            <source>Presses Input</source>
            <translation>記帳を押す</translation>
        </message>
        <message>
            <source>Does nothing</source>
            <translation>何もしない</translation>
        </message>
        <message>
            <source>Return &amp;key in the input window:</source>
            <translation>入力ウインドウの Return キー(&amp;K):</translation>
        </message>
        <message>
            <source>Change Pass&amp;word…</source>
            <translation>パスワードを変更…(&amp;W)</translation>
        </message>
        <message>
            <source>Password:</source>
            <translation>パスワード:</translation>
        </message>
        <message>
            <source>No password is asked for at start.</source>
            <translation>起動時にパスワードを求めません。</translation>
        </message>
        <message>
            <source>A password is asked for at start.</source>
            <translation>起動時にパスワードを求めます。</translation>
        </message>
        <message>
            <source>Untitled</source>
            <translation>名称未設定</translation>
        </message>
        <message>
            <source>Colour of “%1”</source>
            <translation>「%1」の色</translation>
        </message>
        <message>
            <source>Choose the Data Folder</source>
            <translation>データフォルダを選ぶ</translation>
        </message>
        <message>
            <source>Choose</source>
            <translation>選択</translation>
        </message>
        <message>
            <source>Penwick cannot keep its data in this folder.</source>
            <translation>このフォルダにはデータを保存できません。</translation>
        </message>
        <message>
            <source>The folder %1 cannot be written to. Choose a folder you may change.</source>
            <translation>フォルダ %1 には書き込めません。書き込めるフォルダを選んでください。</translation>
        </message>
        <message>
            <source>The data folder was not changed.</source>
            <translation>データフォルダは変更されませんでした。</translation>
        </message>
        <message>
            <source>Some months could not be saved in the current folder. They stay loaded so that nothing is lost; free some disk space or check the folder's permissions, then try again.</source>
            <translation>現在のフォルダに保存できなかった月があります。失われないよう読み込んだままにしてあります。ディスクの空きを作るかフォルダのアクセス権を確かめてから、もう一度試してください。</translation>
        </message>
        <message>
            <source>The new data folder needs attention.</source>
            <translation>新しいデータフォルダに確認が必要です。</translation>
        </message>
        <message>
            <source>Renumbering the stored entries…</source>
            <translation>保存されたデータの番号を付け直しています…</translation>
        </message>
        <message>
            <source>The lists were not changed.</source>
            <translation>リストは変更されませんでした。</translation>
        </message>
        <message>
            <source>&amp;Reset Colours</source>
            <translation>色を元に戻す(&amp;R)</translation>
        </message>
        <message>
            <source>Give every category its colour from the palette again</source>
            <translation>すべての分類の色を既定の色に戻します</translation>
        </message>
        <message>
            <source>The categories or payways were changed elsewhere while this window was open (by Undo or Redo). The window now shows them as they are; make your changes again.</source>
            <translation>このウインドウを開いている間に、分類か支払い方法が別の場所で（取り消しかやり直しで）変更されました。ウインドウには現在の内容を表示しています。変更をもう一度行ってください。</translation>
        </message>
    </context>
    <context>
        <name>ScriptApplication</name>
        <message>
            <source>Penwick is locked: enter the password in the program first.</source>
            <translation>Penwick はロックされています。先にプログラムでパスワードを入力してください。</translation>
        </message>
        <message>
            <source>at index %1</source>
            <translation>インデックス %1</translation>
        </message>
        <message>
            <source>'%1' is not a month (YYYYMM), a year (YYYY) or all</source>
            <translation>「%1」は月 (YYYYMM)、年 (YYYY)、all のどれでもありません</translation>
        </message>
        <message>
            <source>&apos;%1&apos; is not csv, qif, ofx or xhb</source>
            <translation>&apos;%1&apos; は csv、qif、ofx、xhb のいずれでもありません</translation>
        </message>
        <message>
            <source>&apos;%1&apos; is not a month (YYYYMM)</source>
            <translation>「%1」は月（YYYYMM）ではありません</translation>
        </message>
    </context>
    <context>
        <name>ScriptDataList</name>
        <message>
            <source>Penwick is locked: enter the password in the program first.</source>
            <translation>Penwick はロックされています。先にプログラムでパスワードを入力してください。</translation>
        </message>
    </context>
    <context>
        <name>SearchService</name>
        <message>
            <source>There is no session bus: %1</source>
            <translation>セッションバスがありません: %1</translation>
        </message>
        <message>
            <source>The search objects could not be registered.</source>
            <translation>検索用のオブジェクトを登録できませんでした。</translation>
        </message>
        <message>
            <source>Another program already answers searches as %1.</source>
            <translation>ほかのプログラムがすでに %1 として検索に応答しています。</translation>
        </message>
    </context>
    <context>
        <name>ScriptService</name>
        <message>
            <source>There is no session bus: %1</source>
            <translation>セッションバスがありません: %1</translation>
        </message>
        <message>
            <source>The scripting object could not be registered.</source>
            <translation>スクリプト用のオブジェクトを登録できませんでした。</translation>
        </message>
        <message>
            <source>Another program already answers scripts as %1.</source>
            <translation>ほかのプログラムがすでに %1 としてスクリプトに応答しています。</translation>
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
            <source>The password is saved as soon as you press OK here, even if you then cancel the preferences. Leave the new password empty to remove it.</source>
            <translation>ここで OK を押すとすぐにパスワードが保存され、その後で環境設定をキャンセルしても元に戻りません。パスワードを解除するには、新しいパスワードを空のままにしてください。</translation>
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
        <message>
            <source>Another Penwick already works on the data folder "%1".</source>
            <translation>ほかの Penwick がすでにデータフォルダ「%1」を使っています。</translation>
        </message>
    </context>
    <context>
        <name>StringUtility</name>
        <message>
            <source>Space Character</source>
            <translation>　</translation>
        </message>
        <message>
            <source>Kuten Character</source>
            <translation>。</translation>
        </message>
        <message>
            <source>Minus Character</source>
            <translation>－</translation>
        </message>
        <message>
            <source>Tilde Character</source>
            <translation>〜</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>--appearance takes system, light or dark, not %1.</source>
            <translation>--appearance には system、light、dark のいずれかを指定してください (%1 は使えません)。</translation>
        </message>
        <message>
            <source>Look as the desktop has it (system), or light or dark, for this run only; the preferences keep their choice.</source>
            <translation>デスクトップの外観 (system)、ライト (light)、ダーク (dark) のいずれかで表示します。この起動の間だけで、環境設定の選択は変わりません。</translation>
        </message>
        <message>
            <source>Start without a window, to answer the desktop's search; the windows open when the program is launched again.</source>
            <translation>ウインドウを開かずに起動し、デスクトップの検索に応答します。もう一度起動するとウインドウが開きます。</translation>
        </message>
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
    <context>
        <name>DurableFile</name>
        <message>
            <source>%1 could not be written: %2</source>
            <translation>%1 を書き込めませんでした: %2</translation>
        </message>
        <message>
            <source>%1 could not be replaced: %2</source>
            <translation>%1 を置き換えられませんでした: %2</translation>
        </message>
        <message>
            <source>The folder %1 could not be written to disk: %2</source>
            <translation>フォルダ %1 をディスクに書き込めませんでした: %2</translation>
        </message>
    </context>
    <context>
        <name>EntryCheck</name>
        <message>
            <source>The %1 "%2" is not a whole number.</source>
            <translation>%1 の「%2」は整数ではありません。</translation>
        </message>
        <message>
            <source>The year %1 is not within %2 to %3.</source>
            <translation>%1 年は %2 〜 %3 年の範囲外です。</translation>
        </message>
        <message>
            <source>category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>payway</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>There is no %1 %2; there are %3, counted from 0.</source>
            <translation>%1 %2 はありません。0 から数えて %3 個あります。</translation>
        </message>
        <message>
            <source>The amount "%1" is not a number.</source>
            <translation>金額「%1」は数値ではありません。</translation>
        </message>
        <message>
            <source>The details are not a text.</source>
            <translation>内容が文字列ではありません。</translation>
        </message>
        <message>
            <source>The month %1 is not within 1 to 12.</source>
            <translation>%1 月は 1 〜 12 月の範囲外です。</translation>
        </message>
        <message>
            <source>The day %1 is not within 1 to %2 of %3/%4.</source>
            <translation>%1 日は %4 年 %3 月の 1 〜 %2 日の範囲外です。</translation>
        </message>
        <message>
            <source>The amount is not a number.</source>
            <translation>金額が数値ではありません。</translation>
        </message>
        <message>
            <source>The amount is infinite, as after a division by zero.</source>
            <translation>金額が無限大です（0で割った結果など）。</translation>
        </message>
        <message>
            <source>The amount %1 is larger than an entry can hold.</source>
            <translation>金額 %1 は記録できる範囲を超えています。</translation>
        </message>
    </context>
    <context>
        <name>ListFile</name>
        <message>
            <source>it has no %1</source>
            <translation>%1 がありません</translation>
        </message>
        <message>
            <source>its %1 is not a list of names</source>
            <translation>%1 が名前のリストではありません</translation>
        </message>
        <message>
            <source>its %1 is empty</source>
            <translation>%1 が空です</translation>
        </message>
        <message>
            <source>its %1 is not a list of colours</source>
            <translation>%1 が色のリストではありません</translation>
        </message>
        <message>
            <source>it holds no dictionary</source>
            <translation>辞書が含まれていません</translation>
        </message>
        <message>
            <source>The list file %1 cannot be read: %2</source>
            <translation>リストのファイル %1 を読み込めません: %2</translation>
        </message>
    </context>
    <context>
        <name>RescueFolder</name>
        <message>
            <source>The folder %1 could not be made.</source>
            <translation>フォルダ %1 を作成できませんでした。</translation>
        </message>
        <message>
            <source>the name does not stand for a month</source>
            <translation>名前が月を表していません</translation>
        </message>
        <message>
            <source>there is no such month</source>
            <translation>その月はありません</translation>
        </message>
        <message>
            <source>the month's own file cannot be read</source>
            <translation>その月のファイルを読み込めません</translation>
        </message>
        <message>
            <source>%1: brought back as it was</source>
            <translation>%1: 保管時のまま戻しました</translation>
        </message>
        <message>
            <source>%1: its file had changed since, so the entries it lacked were added</source>
            <translation>%1: その後ファイルが変更されていたため、足りない項目を追加しました</translation>
        </message>
    </context>
    <context>
        <name>ScriptCommands</name>
        <message>
            <source>The entry could not be booked: the file of its month cannot be read.</source>
            <translation>記帳できませんでした: その月のファイルを読み込めません。</translation>
        </message>
        <message>
            <source>The entry was not booked: %1</source>
            <translation>記帳されませんでした: %1</translation>
        </message>
        <message>
            <source>There is no month %1.</source>
            <translation>月 %1 はありません。</translation>
        </message>
        <message>
            <source>The entries of %1/%2 cannot be read: %3</source>
            <translation>%2 年 %1 月の項目を読み込めません: %3</translation>
        </message>
        <message>
            <source>Booking by a Script</source>
            <translation>スクリプトによる記帳</translation>
        </message>
    </context>
    <context>
        <name>ListSearchPanel</name>
        <message>
            <source>e.g. 1,5,10-12</source>
            <translation>例: 1,5,10-12</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Any of these words</source>
            <translation>いずれかの語を含む</translation>
        </message>
        <message>
            <source>From</source>
            <translation>下限</translation>
        </message>
        <message>
            <source>To</source>
            <translation>上限</translation>
        </message>
        <message>
            <source>Payment method</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>&amp;Days:</source>
            <translation>日(&amp;D):</translation>
        </message>
        <message>
            <source>&amp;Words:</source>
            <translation>語句(&amp;W):</translation>
        </message>
        <message>
            <source>&amp;Amount:</source>
            <translation>金額(&amp;A):</translation>
        </message>
        <message>
            <source>days %1</source>
            <translation>日 %1</translation>
        </message>
        <message>
            <source>words %1</source>
            <translation>語句 %1</translation>
        </message>
        <message>
            <source>from %1</source>
            <translation>%1 以上</translation>
        </message>
        <message>
            <source>up to %1</source>
            <translation>%1 以下</translation>
        </message>
    </context>
    <context>
        <name>MonthMemo</name>
        <message>
            <source>Memo</source>
            <translation>メモ</translation>
        </message>
        <message>
            <source>This month's file could not be read.</source>
            <translation>この月のファイルを読み込めませんでした。</translation>
        </message>
        <message>
            <source>Notes on %1 %2</source>
            <translation>%2年%1のメモ</translation>
        </message>
        <message>
            <source>Memo Edit</source>
            <translation>メモの編集</translation>
        </message>
    </context>
    <context>
        <name>MonthTotalsPane</name>
        <message>
            <source>This Month</source>
            <translation>今月</translation>
        </message>
        <message>
            <source>Spending:</source>
            <translation>支出:</translation>
        </message>
        <message>
            <source>Income:</source>
            <translation>収入:</translation>
        </message>
        <message>
            <source>Balance:</source>
            <translation>残高:</translation>
        </message>
        <message>
            <source>Shown Entries</source>
            <translation>表示中のデータ</translation>
        </message>
        <message>
            <source>Share of the month:</source>
            <translation>月に占める割合:</translation>
        </message>
        <message>
            <source>%1 %</source>
            <translation>%1 %</translation>
        </message>
        <message>
            <source>Spending</source>
            <translation>支出</translation>
        </message>
        <message>
            <source>Income</source>
            <translation>収入</translation>
        </message>
        <message>
            <source>Balance</source>
            <translation>残高</translation>
        </message>
        <message>
            <source>Spending of the entries shown</source>
            <translation>表示中のデータの支出</translation>
        </message>
        <message>
            <source>Share of the month</source>
            <translation>月に占める割合</translation>
        </message>
        <message>
            <source>Balance of the entries shown</source>
            <translation>表示中のデータの残高</translation>
        </message>
    </context>
    <context>
        <name>EntryTableView</name>
        <message>
            <source>&amp;Columns</source>
            <translation>列(&amp;C)</translation>
        </message>
    </context>
    <context>
        <name>InputDateBar</name>
        <message>
            <source>&amp;Date:</source>
            <translation>日付(&amp;D):</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>年</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>月</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>日</translation>
        </message>
        <message>
            <source>Previous day</source>
            <translation>前の日</translation>
        </message>
        <message>
            <source>Next day</source>
            <translation>次の日</translation>
        </message>
    </context>
    <context>
        <name>InputSheets</name>
        <message>
            <source>The amount in row %1 cannot be booked.</source>
            <translation>%1 行目の金額は記帳できません。</translation>
        </message>
        <message>
            <source>Book into the year %1?</source>
            <translation>%1 年に記帳しますか？</translation>
        </message>
        <message>
            <source>Book into the years %1?</source>
            <translation>%1 年に記帳しますか？</translation>
        </message>
        <message>
            <source>That is more than a year away from today.</source>
            <translation>今日から1年以上離れた年です。</translation>
        </message>
        <message>
            <source>Book</source>
            <translation>記帳</translation>
        </message>
        <message>
            <source>Change the Year</source>
            <translation>年を直す</translation>
        </message>
        <message>
            <source>Some entries were not booked and are still here.</source>
            <translation>記帳されなかった項目があり、そのまま残しています。</translation>
        </message>
    </context>
    <context>
        <name>InputRowList</name>
        <message>
            <source>Date</source>
            <translation>日付</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>内容</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>&amp;Add Row</source>
            <translation>行を追加(&amp;A)</translation>
        </message>
        <message>
            <source>Spending total:</source>
            <translation>支出の合計:</translation>
        </message>
        <message>
            <source>Spending total</source>
            <translation>支出の合計</translation>
        </message>
    </context>
    <context>
        <name>LedgerAlerts</name>
        <message>
            <source>Penwick</source>
            <translation>Penwick</translation>
        </message>
        <message>
            <source>Some months could not be saved.</source>
            <translation>保存できなかった月があります。</translation>
        </message>
        <message>
            <source>%1

Free some disk space or check the folder's permissions and try again, or save a copy of these months elsewhere and bring it back later.</source>
            <translation>%1

ディスクの空きを作るかフォルダのアクセス権を確かめてから再試行してください。または、これらの月のコピーを別の場所に保存し、後で戻すこともできます。</translation>
        </message>
        <message>
            <source>Try Again</source>
            <translation>再試行</translation>
        </message>
        <message>
            <source>Save a Copy…</source>
            <translation>コピーを保存…</translation>
        </message>
        <message>
            <source>Quit Without Saving</source>
            <translation>保存せずに終了</translation>
        </message>
        <message>
            <source>The copy could not be saved either.</source>
            <translation>コピーも保存できませんでした。</translation>
        </message>
        <message>
            <source>Months that could not be saved on %1 were kept.</source>
            <translation>%1 に保存できなかった月が保管されています。</translation>
        </message>
        <message>
            <source>%1

They are in %2. Bring them back into the data folder now?</source>
            <translation>%1

保管場所は %2 です。今すぐデータフォルダに戻しますか?</translation>
        </message>
        <message>
            <source>Bring Back</source>
            <translation>戻す</translation>
        </message>
        <message>
            <source>Not Now</source>
            <translation>後で</translation>
        </message>
        <message>
            <source>Discard…</source>
            <translation>破棄…</translation>
        </message>
        <message>
            <source>Not every kept month could be brought back; the copy stays.</source>
            <translation>保管した月の一部を戻せませんでした。コピーは残しています。</translation>
        </message>
        <message>
            <source>Throw the kept months away for good?</source>
            <translation>保管した月を完全に破棄しますか?</translation>
        </message>
        <message>
            <source>Throw Away</source>
            <translation>破棄</translation>
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
            <source>The category and payway lists could not be read.</source>
            <translation>分類と支払い方法のリストを読み込めませんでした。</translation>
        </message>
        <message>
            <source>%1

The file "%2" is left exactly as it is, and nothing can be booked until it is mended or replaced.</source>
            <translation>%1

ファイル「%2」はそのまま残しています。修復または置き換えるまで記帳できません。</translation>
        </message>
        <message>
            <source>The entries of %1 could not be saved.</source>
            <translation>%1 のデータを保存できませんでした。</translation>
        </message>
        <message>
            <source>%1

The changes are kept in memory, and Penwick tries again every 30 seconds and at every change. Free some disk space or check the folder's permissions.</source>
            <translation>%1

変更はメモリに残しており、30 秒ごとと変更のたびに再試行します。ディスクの空きを作るか、フォルダのアクセス権を確かめてください。</translation>
        </message>
        <message>
            <source>Penwick found %1 problems.</source>
            <translation>Penwick は %1 件の問題を見つけました。</translation>
        </message>
        <message>
            <source>

Show Details… tells more of each.</source>
            <translation>

「詳細を表示…」でそれぞれの詳しい内容を確かめられます。</translation>
        </message>
    </context>
    <context>
        <name>ChangeJournal</name>
        <message>
            <source>%1 could not be opened: %2</source>
            <translation>%1 を開けませんでした: %2</translation>
        </message>
        <message>
            <source>%1 could not be written: %2</source>
            <translation>%1 を書き込めませんでした: %2</translation>
        </message>
        <message>
            <source>%1 could not be removed: %2</source>
            <translation>%1 を削除できませんでした: %2</translation>
        </message>
        <message>
            <source>%1 could not be read: %2</source>
            <translation>%1 を読み込めませんでした: %2</translation>
        </message>
    </context>
    <context>
        <name>UndoHistory</name>
        <message>
            <source>Change</source>
            <translation>変更</translation>
        </message>
        <message>
            <source>&amp;Undo %1</source>
            <translation>「%1」を取り消す(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>取り消す(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Redo %1</source>
            <translation>「%1」をやり直す(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>やり直す(&amp;R)</translation>
        </message>
        <message>
            <source>“%1” could not be undone.</source>
            <translation>「%1」を取り消せませんでした。</translation>
        </message>
        <message>
            <source>“%1” could not be redone.</source>
            <translation>「%1」をやり直せませんでした。</translation>
        </message>
    </context>
    <context>
        <name>CsvExport</name>
        <message>
            <source>%1/%2 cannot be read: %3</source>
            <translation>%1年%2月を読み込めません: %3</translation>
        </message>
    </context>
    <context>
        <name>Importer</name>
        <message>
            <source>The encoding %1 is not known.</source>
            <translation>文字コード %1 は使えません。</translation>
        </message>
        <message>
            <source>The file holds no rows.</source>
            <translation>ファイルに行がありません。</translation>
        </message>
        <message>
            <source>No column of dates and amounts was found; choose the columns.</source>
            <translation>日付と金額の列が見つかりません。列を選んでください。</translation>
        </message>
        <message>
            <source>The date is missing.</source>
            <translation>日付がありません。</translation>
        </message>
        <message>
            <source>'%1' is not a date.</source>
            <translation>「%1」は日付ではありません。</translation>
        </message>
        <message>
            <source>'%1' is not an amount.</source>
            <translation>「%1」は金額ではありません。</translation>
        </message>
        <message>
            <source>The amount is missing.</source>
            <translation>金額がありません。</translation>
        </message>
        <message>
            <source>This is not a HomeBank file.</source>
            <translation>HomeBank のファイルではありません。</translation>
        </message>
        <message>
            <source>The HomeBank file is damaged at line %1: %2</source>
            <translation>HomeBank のファイルが %1 行目で壊れています: %2</translation>
        </message>
        <message>
            <source>This is not an OFX file.</source>
            <translation>OFX のファイルではありません。</translation>
        </message>
        <message>
            <source>The file cannot be read: %1</source>
            <translation>ファイルを読み込めません: %1</translation>
        </message>
        <message>
            <source>This is not a QIF file: it has no !Type line.</source>
            <translation>QIF のファイルではありません: !Type の行がありません。</translation>
        </message>
    </context>
    <context>
        <name>LedgerImport</name>
        <message numerus="yes">
            <source>%1/%2: %n</source>
            <translation>
                <numerusform>%2年%1月: %n 件</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n entries into %1 months</source>
            <translation>
                <numerusform>%n 件を %1 か月に記帳</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Skipped as booked already: %n</source>
            <translation>
                <numerusform>記帳済みのため除外: %n 件</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Left out: %n</source>
            <translation>
                <numerusform>除外したもの: %n 件</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Rows that could not be read: %n</source>
            <translation>
                <numerusform>読み込めなかった行: %n 行</numerusform>
            </translation>
        </message>
        <message>
            <source>New category: %1</source>
            <translation>新しい分類: %1</translation>
        </message>
        <message>
            <source>Categories without a match (booked as %1): %2</source>
            <translation>一致しなかった分類（%1 として記帳）: %2</translation>
        </message>
        <message>
            <source>The categories were changed meanwhile; start the import again.</source>
            <translation>その間に分類が変更されました。取り込みをやり直してください。</translation>
        </message>
        <message>
            <source>No entry is ticked for booking.</source>
            <translation>記帳する項目にチェックがありません。</translation>
        </message>
    </context>
    <context>
        <name>ImportPreviewModel</name>
        <message>
            <source>In the file: %1</source>
            <translation>ファイルでは: %1</translation>
        </message>
        <message>
            <source>Booked already</source>
            <translation>記帳済み</translation>
        </message>
        <message>
            <source>No category &quot;%1&quot;</source>
            <translation>分類「%1」がありません</translation>
        </message>
        <message>
            <source>Book</source>
            <translation>記帳</translation>
        </message>
        <message>
            <source>Line</source>
            <translation>行</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>日付</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>内容</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>Note</source>
            <translation>備考</translation>
        </message>
    </context>
    <context>
        <name>ImportDialog</name>
        <message>
            <source>Date</source>
            <translation>日付</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Money out</source>
            <translation>出金</translation>
        </message>
        <message>
            <source>Money in</source>
            <translation>入金</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>内容</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>(not imported)</source>
            <translation>（取り込まない）</translation>
        </message>
        <message>
            <source>Day, month, year</source>
            <translation>日・月・年</translation>
        </message>
        <message>
            <source>Month, day, year</source>
            <translation>月・日・年</translation>
        </message>
        <message>
            <source>Year, month, day</source>
            <translation>年・月・日</translation>
        </message>
        <message>
            <source>Import %1</source>
            <translation>%1 の取り込み</translation>
        </message>
        <message>
            <source>CSV</source>
            <translation>CSV</translation>
        </message>
        <message>
            <source>QIF</source>
            <translation>QIF</translation>
        </message>
        <message>
            <source>OFX or QFX</source>
            <translation>OFX または QFX</translation>
        </message>
        <message>
            <source>HomeBank</source>
            <translation>HomeBank</translation>
        </message>
        <message>
            <source>&amp;Format:</source>
            <translation>形式(&amp;F):</translation>
        </message>
        <message>
            <source>A new category:</source>
            <translation>新しい分類:</translation>
        </message>
        <message>
            <source>Imported</source>
            <translation>取り込み分</translation>
        </message>
        <message>
            <source>Categories &amp;without a match:</source>
            <translation>一致しない分類(&amp;W):</translation>
        </message>
        <message>
            <source>Rows that could not be read (never booked):</source>
            <translation>読み込めなかった行（記帳しません）:</translation>
        </message>
        <message>
            <source>&amp;Import</source>
            <translation>取り込む(&amp;I)</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>取り込み</translation>
        </message>
        <message>
            <source>Nothing was imported.</source>
            <translation>何も取り込んでいません。</translation>
        </message>
        <message>
            <source>The import is booked.</source>
            <translation>取り込みを記帳しました。</translation>
        </message>
        <message>
            <source>Japanese (Shift_JIS, CP932)</source>
            <translation>日本語 (Shift_JIS, CP932)</translation>
        </message>
        <message>
            <source>Japanese (EUC-JP)</source>
            <translation>日本語 (EUC-JP)</translation>
        </message>
        <message>
            <source>Western (Windows-1252)</source>
            <translation>西欧 (Windows-1252)</translation>
        </message>
        <message>
            <source>&amp;Encoding:</source>
            <translation>文字コード(&amp;E):</translation>
        </message>
        <message>
            <source>&amp;Dates:</source>
            <translation>日付の順(&amp;D):</translation>
        </message>
        <message>
            <source>First row &amp;names the columns</source>
            <translation>1 行目は列の名前(&amp;N)</translation>
        </message>
        <message>
            <source>Column %1</source>
            <translation>%1 列目</translation>
        </message>
        <message>
            <source>Line %1: %2</source>
            <translation>%1 行目: %2</translation>
        </message>
        <message>
            <source>The dates of this file can be read more than one way.</source>
            <translation>このファイルの日付は複数の読み方ができます。</translation>
        </message>
        <message numerus="yes">
            <source>Booking %n entries…</source>
            <translation>
                <numerusform>%n 件を記帳しています…</numerusform>
            </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>List</source>
            <translation>項目</translation>
        </message>
        <message>
            <source>In the file</source>
            <translation>ファイルでの名前</translation>
        </message>
        <message>
            <source>Booked as</source>
            <translation>記帳先</translation>
        </message>
        <message>
            <source>Names without a &amp;match:</source>
            <translation>一致しない名前(&amp;M):</translation>
        </message>
        <message>
            <source>%1 booked as</source>
            <translation>%1 の記帳先</translation>
        </message>
        <message>
            <source>Like the others (%1)</source>
            <translation>ほかと同じ (%1)</translation>
        </message>
    </context>
    <context>
        <name>FileToImport</name>
        <message>
            <source>%1 cannot be read: %2</source>
            <translation>%1 を読み込めません: %2</translation>
        </message>
        <message>
            <source>%1 is empty.</source>
            <translation>%1 は空です。</translation>
        </message>
    </context>
    <context>
        <name>ImportMapping</name>
        <message>
            <source>&apos;%1&apos; is not of the form SOURCE=CATEGORY.</source>
            <translation>&apos;%1&apos; は SOURCE=CATEGORY の形ではありません。</translation>
        </message>
        <message>
            <source>There is no category &apos;%1&apos;.</source>
            <translation>分類 &apos;%1&apos; はありません。</translation>
        </message>
    </context>
    <context>
        <name>DueDialog</name>
        <message>
            <source>Scheduled Entries Due</source>
            <translation>記帳日が来た定期項目</translation>
        </message>
        <message>
            <source>These scheduled entries are due. Change what differs this time, and untick those that are not to be booked: they are skipped.</source>
            <translation>次の定期項目の記帳日が来ました。今回違うところは書き換え、記帳しないものはチェックを外してください。外したものは見送られます。</translation>
        </message>
        <message>
            <source>Book</source>
            <translation>記帳</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>日付</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>内容</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>&amp;Book</source>
            <translation>記帳(&amp;B)</translation>
        </message>
        <message>
            <source>&amp;Later</source>
            <translation>後で(&amp;L)</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <translation>%1: %2</translation>
        </message>
    </context>
    <context>
        <name>FolderFiles</name>
        <message>
            <source>%1 cannot be read (%2), so none of the stored entries has been renumbered and the lists are unchanged. Mend or remove it first.</source>
            <translation>%1 を読み込めないため（%2）、保存済みの項目の番号は変更しておらず、リストも変わっていません。先にこのファイルを修復するか取り除いてください。</translation>
        </message>
    </context>
    <context>
        <name>Schedule</name>
        <message>
            <source>The schedule needs a start date.</source>
            <translation>開始日が必要です。</translation>
        </message>
        <message>
            <source>It must repeat at least every 1 month, week or year.</source>
            <translation>繰り返しの間隔は 1 以上にしてください。</translation>
        </message>
        <message>
            <source>The day of the month must be from 1 to 31.</source>
            <translation>日は 1 から 31 までで指定してください。</translation>
        </message>
        <message>
            <source>The weekday must be from Monday to Sunday.</source>
            <translation>曜日は月曜日から日曜日までで指定してください。</translation>
        </message>
        <message>
            <source>The month must be from 1 to 12.</source>
            <translation>月は 1 から 12 までで指定してください。</translation>
        </message>
        <message>
            <source>That month has no day %1.</source>
            <translation>その月に %1 日はありません。</translation>
        </message>
        <message>
            <source>The end comes before the start.</source>
            <translation>終了日が開始日より前です。</translation>
        </message>
        <message>
            <source>It must happen at least once.</source>
            <translation>回数は 1 回以上にしてください。</translation>
        </message>
        <message>
            <source>No date of the rule falls between the start and the end.</source>
            <translation>開始日から終了日までに該当する日がありません。</translation>
        </message>
        <message>
            <source>Every month on day %1</source>
            <translation>毎月 %1 日</translation>
        </message>
        <message>
            <source>Every %1 months on day %2</source>
            <translation>%1 か月ごとの %2 日</translation>
        </message>
        <message>
            <source>Every week on %1</source>
            <translation>毎週%1</translation>
        </message>
        <message>
            <source>Every %1 weeks on %2</source>
            <translation>%1 週間ごとの%2</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <translation>M月d日</translation>
        </message>
        <message>
            <source>Every year on %1</source>
            <translation>毎年%1</translation>
        </message>
        <message>
            <source>Every %1 years on %2</source>
            <translation>%1 年ごとの%2</translation>
        </message>
    </context>
    <context>
        <name>ScheduleBook</name>
        <message>
            <source>The schedules file cannot be read: %1 It is left as it is, and no entry is booked from it until it is mended.</source>
            <translation>定期項目のファイルを読み込めません: %1 ファイルはそのままにしてあり、修復されるまでそこからは何も記帳しません。</translation>
        </message>
        <message>
            <source>There is a schedule of that name already.</source>
            <translation>同じ定期項目がすでにあります。</translation>
        </message>
        <message>
            <source>The schedule is gone.</source>
            <translation>その定期項目はもうありません。</translation>
        </message>
        <message numerus="yes">
            <source>Booking of %n Scheduled Entries</source>
            <translation>
                <numerusform>定期項目 %n 件の記帳</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>ScheduleDialog</name>
        <message>
            <source>New Schedule</source>
            <translation>新しい定期項目</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>定期項目</translation>
        </message>
        <message>
            <source>&amp;Details:</source>
            <translation>内容(&amp;D):</translation>
        </message>
        <message>
            <source>&amp;Category:</source>
            <translation>分類(&amp;C):</translation>
        </message>
        <message>
            <source>&amp;Amount:</source>
            <translation>金額(&amp;A):</translation>
        </message>
        <message>
            <source>&amp;Payway:</source>
            <translation>支払い方法(&amp;P):</translation>
        </message>
        <message>
            <source>months</source>
            <translation>か月ごと</translation>
        </message>
        <message>
            <source>weeks</source>
            <translation>週間ごと</translation>
        </message>
        <message>
            <source>years</source>
            <translation>年ごと</translation>
        </message>
        <message>
            <source>&amp;Every:</source>
            <translation>間隔(&amp;E):</translation>
        </message>
        <message>
            <source>&amp;On:</source>
            <translation>日付(&amp;O):</translation>
        </message>
        <message>
            <source>&amp;Starts:</source>
            <translation>開始日(&amp;S):</translation>
        </message>
        <message>
            <source>Never</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>On</source>
            <translation>日付で</translation>
        </message>
        <message>
            <source>After</source>
            <translation>回数で</translation>
        </message>
        <message>
            <source> times</source>
            <translation> 回</translation>
        </message>
        <message>
            <source>E&amp;nds:</source>
            <translation>終了(&amp;N):</translation>
        </message>
        <message>
            <source>Book &amp;automatically</source>
            <translation>自動で記帳する(&amp;A)</translation>
        </message>
        <message>
            <source>Ask &amp;first</source>
            <translation>記帳前に確認する(&amp;F)</translation>
        </message>
        <message>
            <source>Booking:</source>
            <translation>記帳:</translation>
        </message>
        <message>
            <source>Give the amount to book.</source>
            <translation>記帳する金額を入力してください。</translation>
        </message>
        <message>
            <source>%1; next on %2, at %3.</source>
            <translation>%1。次回は %2、金額 %3。</translation>
        </message>
        <message>
            <source>%1; every date of it has been booked.</source>
            <translation>%1。すべての日付を記帳済みです。</translation>
        </message>
    </context>
    <context>
        <name>ScheduleFile</name>
        <message>
            <source>It holds no list of schedules.</source>
            <translation>定期項目の一覧がありません。</translation>
        </message>
        <message>
            <source>It was written by a newer Penwick.</source>
            <translation>より新しい Penwick で書かれています。</translation>
        </message>
        <message>
            <source>Schedule %1 has a wrong &quot;%2&quot;.</source>
            <translation>%1 番目の定期項目の「%2」が正しくありません。</translation>
        </message>
    </context>
    <context>
        <name>ScheduleListModel</name>
        <message>
            <source>Finished</source>
            <translation>終了</translation>
        </message>
        <message>
            <source>Ask first</source>
            <translation>確認する</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>自動</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>次回</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>内容</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>分類</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>金額</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>支払い方法</translation>
        </message>
        <message>
            <source>Repeats</source>
            <translation>繰り返し</translation>
        </message>
        <message>
            <source>Booking</source>
            <translation>記帳</translation>
        </message>
    </context>
    <context>
        <name>ScheduleWinController</name>
        <message>
            <source>Schedules</source>
            <translation>定期項目</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>追加(&amp;A)…</translation>
        </message>
        <message>
            <source>&amp;Edit…</source>
            <translation>編集(&amp;E)…</translation>
        </message>
        <message>
            <source>&amp;Remove…</source>
            <translation>削除(&amp;R)…</translation>
        </message>
        <message>
            <source>The schedule could not be saved.</source>
            <translation>定期項目を保存できませんでした。</translation>
        </message>
        <message>
            <source>Remove Schedule</source>
            <translation>定期項目の削除</translation>
        </message>
        <message>
            <source>Remove the schedule &quot;%1&quot;? Entries booked from it stay.</source>
            <translation>定期項目「%1」を削除しますか？ すでに記帳した項目は残ります。</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>削除(&amp;R)</translation>
        </message>
        <message>
            <source>The schedule could not be removed.</source>
            <translation>定期項目を削除できませんでした。</translation>
        </message>
    </context>
    <context>
        <name>ImportOffer</name>
        <message>
            <source>Import</source>
            <translation>取り込み</translation>
        </message>
        <message>
            <source>Statements and account books (*.csv *.txt *.qif *.ofx *.qfx *.xhb)</source>
            <translation>明細と家計簿 (*.csv *.txt *.qif *.ofx *.qfx *.xhb)</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>すべてのファイル (*)</translation>
        </message>
    </context>
    <context>
        <name>PropertyList</name>
        <message>
            <source>The file is empty.</source>
            <translation>ファイルが空です。</translation>
        </message>
        <message>
            <source>The file is too large.</source>
            <translation>ファイルが大きすぎます。</translation>
        </message>
        <message>
            <source>It is not a property list.</source>
            <translation>プロパティリストではありません。</translation>
        </message>
        <message>
            <source>It holds a kind of value Penwick does not keep.</source>
            <translation>Penwick が扱わない種類の値が含まれています。</translation>
        </message>
    </context>
</TS>
