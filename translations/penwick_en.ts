<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
    <context>
        <name>BalanceWinController</name>
        <message>
            <source>Balance</source>
            <translation>Balance</translation>
        </message>
        <message>
            <source>Spending</source>
            <translation>Spending</translation>
        </message>
        <message>
            <source>Income</source>
            <translation>Income</translation>
        </message>
        <message>
            <source>Budget</source>
            <translation>Budget</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Left</translation>
        </message>
    </context>
    <context>
        <name>BudgetAmount</name>
        <message>
            <source>&quot;%1&quot; is not an amount.</source>
            <translation>&quot;%1&quot; is not an amount.</translation>
        </message>
        <message>
            <source>A budget cannot be below zero.</source>
            <translation>A budget cannot be below zero.</translation>
        </message>
    </context>
    <context>
        <name>BudgetBook</name>
        <message>
            <source>The budget file %1 cannot be read (%2); mend or remove it first.</source>
            <translation>The budget file %1 cannot be read (%2); mend or remove it first.</translation>
        </message>
        <message>
            <source>Change of Budgets</source>
            <translation>Change of Budgets</translation>
        </message>
    </context>
    <context>
        <name>BudgetFile</name>
        <message>
            <source>It holds no dictionary of budgets.</source>
            <translation>It holds no dictionary of budgets.</translation>
        </message>
        <message>
            <source>Its budgets by category are not a list.</source>
            <translation>Its budgets by category are not a list.</translation>
        </message>
        <message>
            <source>A budget of a category cannot be read.</source>
            <translation>A budget of a category cannot be read.</translation>
        </message>
        <message>
            <source>The budget of all spending cannot be read.</source>
            <translation>The budget of all spending cannot be read.</translation>
        </message>
    </context>
    <context>
        <name>BudgetPane</name>
        <message>
            <source>Budget</source>
            <translation>Budget</translation>
        </message>
        <message>
            <source>Edit Budgets…</source>
            <translation>Edit Budgets…</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Left</translation>
        </message>
        <message>
            <source>All spending</source>
            <translation>All spending</translation>
        </message>
        <message>
            <source>The budgets cannot be read: %1</source>
            <translation>The budgets cannot be read: %1</translation>
        </message>
        <message>
            <source>No budgets set.</source>
            <translation>No budgets set.</translation>
        </message>
        <message>
            <source>%1 spent of %2 (%3 %)</source>
            <translation>%1 spent of %2 (%3 %)</translation>
        </message>
        <message>
            <source>%1 spent of nothing</source>
            <translation>%1 spent of nothing</translation>
        </message>
        <message>
            <source>This month: %1; carried over: %2</source>
            <translation>This month: %1; carried over: %2</translation>
        </message>
        <message>
            <source>Spent</source>
            <translation>Spent</translation>
        </message>
    </context>
    <context>
        <name>BudgetsDialog</name>
        <message>
            <source>Budgets</source>
            <translation>Budgets</translation>
        </message>
        <message>
            <source>Leave an amount empty for no budget. What is left of a budget that rolls over, or what it overspent, goes into the next month&apos;s.</source>
            <translation>Leave an amount empty for no budget. What is left of a budget that rolls over, or what it overspent, goes into the next month&apos;s.</translation>
        </message>
        <message>
            <source>The budgets cannot be read, so they cannot be changed: %1</source>
            <translation>The budgets cannot be read, so they cannot be changed: %1</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Every Month</source>
            <translation>Every Month</translation>
        </message>
        <message>
            <source>%1 %2</source>
            <translation>%1 %2</translation>
        </message>
        <message>
            <source>Roll Over</source>
            <translation>Roll Over</translation>
        </message>
        <message>
            <source>All spending</source>
            <translation>All spending</translation>
        </message>
        <message>
            <source>Rolling over since %1/%2</source>
            <translation>Rolling over since %1/%2</translation>
        </message>
        <message>
            <source>The budgets could not be saved: %1</source>
            <translation>The budgets could not be saved: %1</translation>
        </message>
    </context>
    <context>
        <name>CheckPopUpButton</name>
        <message>
            <source>Select All</source>
            <translation>Select All</translation>
        </message>
        <message>
            <source>Clear Selection</source>
            <translation>Clear Selection</translation>
        </message>
        <message>
            <source>%1: All</source>
            <translation>%1: All</translation>
        </message>
        <message>
            <source>%1: %2</source>
            <translation>%1: %2</translation>
        </message>
        <message numerus="yes">
            <source>%1: %n selected</source>
            <translation>
                <numerusform>%1: %n selected</numerusform>
                <numerusform>%1: %n selected</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>CircleGraphView</name>
        <message>
            <source>No spending to show for this month</source>
            <translation>No spending to show for this month</translation>
        </message>
    </context>
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
        <name>ConversionJournal</name>
        <message>
            <source>The record of an unfinished change of the lists, %1, cannot be read.</source>
            <translation>The record of an unfinished change of the lists, %1, cannot be read.</translation>
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
            <translation>Year</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Month</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Day</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Payment method</source>
            <translation>Payment method</translation>
        </message>
        <message>
            <source>Change of %1</source>
            <translation>Change of %1</translation>
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
            <translation>Category</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Share</source>
            <translation>Share</translation>
        </message>
    </context>
    <context>
        <name>GraphWinController</name>
        <message>
            <source>Charts</source>
            <translation>Charts</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;File</translation>
        </message>
        <message>
            <source>&amp;Print…</source>
            <translation>&amp;Print…</translation>
        </message>
        <message>
            <source>Export as P&amp;DF…</source>
            <translation>Export as P&amp;DF…</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Close</translation>
        </message>
        <message>
            <source>Pie chart</source>
            <translation>Pie chart</translation>
        </message>
        <message>
            <source>Bar chart</source>
            <translation>Bar chart</translation>
        </message>
        <message>
            <source>Line chart</source>
            <translation>Line chart</translation>
        </message>
        <message>
            <source>Show one month fewer</source>
            <translation>Show one month fewer</translation>
        </message>
        <message>
            <source>Show one month more</source>
            <translation>Show one month more</translation>
        </message>
        <message>
            <source>&amp;Year</source>
            <translation>&amp;Year</translation>
        </message>
        <message>
            <source>&amp;Month</source>
            <translation>&amp;Month</translation>
        </message>
        <message>
            <source>Previous month</source>
            <translation>Previous month</translation>
        </message>
        <message>
            <source>Next month</source>
            <translation>Next month</translation>
        </message>
        <message>
            <source>Chart %1-%2.pdf</source>
            <translation>Chart %1-%2.pdf</translation>
        </message>
        <message>
            <source>Export as PDF</source>
            <translation>Export as PDF</translation>
        </message>
        <message>
            <source>PDF files (*.pdf)</source>
            <translation>PDF files (*.pdf)</translation>
        </message>
        <message>
            <source>MMMM yyyy</source>
            <comment>date format of the printed heading</comment>
            <translation>MMMM yyyy</translation>
        </message>
        <message>
            <source>%1 — %2</source>
            <comment>printed heading: month, chart</comment>
            <translation>%1 — %2</translation>
        </message>
        <message>
            <source>B&amp;udget</source>
            <translation>B&amp;udget</translation>
        </message>
        <message>
            <source>Draw each category&apos;s budget as a dashed line</source>
            <translation>Draw each category&apos;s budget as a dashed line</translation>
        </message>
    </context>
    <context>
        <name>InputRow</name>
        <message>
            <source>Month, row %1</source>
            <translation>Month, row %1</translation>
        </message>
        <message>
            <source>Day, row %1</source>
            <translation>Day, row %1</translation>
        </message>
        <message>
            <source>Category, row %1</source>
            <translation>Category, row %1</translation>
        </message>
        <message>
            <source>Details, row %1</source>
            <translation>Details, row %1</translation>
        </message>
        <message>
            <source>Amount, row %1</source>
            <translation>Amount, row %1</translation>
        </message>
        <message>
            <source>An amount, or a sum such as 1,200+350 or 3*450.</source>
            <translation>An amount, or a sum such as 1,200+350 or 3*450.</translation>
        </message>
        <message>
            <source>Payway, row %1</source>
            <translation>Payway, row %1</translation>
        </message>
    </context>
    <context>
        <name>InputWinController</name>
        <message>
            <source>Book Entries</source>
            <translation>Book Entries</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Book and Show &amp;List</source>
            <translation>Book and Show &amp;List</translation>
        </message>
        <message>
            <source>&amp;Book</source>
            <translation>&amp;Book</translation>
        </message>
        <message>
            <source>Booking of an Entry</source>
            <translation>Booking of an Entry</translation>
        </message>
        <message>
            <source>Booking of %1 Entries</source>
            <translation>Booking of %1 Entries</translation>
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
            <source>About Penwick</source>
            <translation>About Penwick</translation>
        </message>
        <message>
            <source>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;A household account book.&lt;/p&gt;&lt;p&gt;Your entries are kept month by month in the data folder:&lt;br&gt;%2&lt;/p&gt;</source>
            <translation>&lt;h3&gt;Penwick %1&lt;/h3&gt;&lt;p&gt;A household account book.&lt;/p&gt;&lt;p&gt;Your entries are kept month by month in the data folder:&lt;br&gt;%2&lt;/p&gt;</translation>
        </message>
        <message>
            <source>&amp;Input Window</source>
            <translation>&amp;Input Window</translation>
        </message>
        <message>
            <source>&amp;List Window</source>
            <translation>&amp;List Window</translation>
        </message>
        <message>
            <source>&amp;Graph Window</source>
            <translation>&amp;Graph Window</translation>
        </message>
        <message>
            <source>&amp;Balance Window</source>
            <translation>&amp;Balance Window</translation>
        </message>
        <message>
            <source>&amp;Preferences…</source>
            <translation>&amp;Preferences…</translation>
        </message>
        <message>
            <source>A change of the category and payway lists could not be finished.</source>
            <translation>A change of the category and payway lists could not be finished.</translation>
        </message>
        <message>
            <source>Not every change made before Penwick stopped could be brought back.</source>
            <translation>Not every change made before Penwick stopped could be brought back.</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>&amp;Edit</translation>
        </message>
        <message>
            <source>&amp;Import…</source>
            <translation>&amp;Import…</translation>
        </message>
        <message>
            <source>B&amp;udgets…</source>
            <translation>B&amp;udgets…</translation>
        </message>
        <message>
            <source>The schedules cannot be read.</source>
            <translation>The schedules cannot be read.</translation>
        </message>
        <message>
            <source>The scheduled entries due could not be booked.</source>
            <translation>The scheduled entries due could not be booked.</translation>
        </message>
        <message>
            <source>&amp;Schedules</source>
            <translation>&amp;Schedules</translation>
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
            <source>The file of this month could not be read, so no entry can be moved into it.</source>
            <translation>The file of this month could not be read, so no entry can be moved into it.</translation>
        </message>
        <message>
            <source>An earlier change of the lists has not been finished yet.</source>
            <translation>An earlier change of the lists has not been finished yet.</translation>
        </message>
        <message>
            <source>The entries of %1 cannot be read, so none of the stored entries has been renumbered and the lists are unchanged. Mend or remove the file %2 first.</source>
            <translation>The entries of %1 cannot be read, so none of the stored entries has been renumbered and the lists are unchanged. Mend or remove the file %2 first.</translation>
        </message>
        <message>
            <source>The entries of %1 could not be saved, so none of the stored entries has been renumbered and the lists are unchanged.</source>
            <translation>The entries of %1 could not be saved, so none of the stored entries has been renumbered and the lists are unchanged.</translation>
        </message>
        <message>
            <source>%1 The change is completed the next time Penwick starts; until then no month is saved.</source>
            <translation>%1 The change is completed the next time Penwick starts; until then no month is saved.</translation>
        </message>
        <message>
            <source>A change of the category and payway lists was interrupted and could not be finished: %1</source>
            <translation>A change of the category and payway lists was interrupted and could not be finished: %1</translation>
        </message>
        <message>
            <source>Nothing can be booked until the list file is mended. %1</source>
            <translation>Nothing can be booked until the list file is mended. %1</translation>
        </message>
        <message>
            <source>There is no month %1 in year %2.</source>
            <translation>There is no month %1 in year %2.</translation>
        </message>
        <message>
            <source>The file of %1/%2 could not be read, so nothing can be added to it.</source>
            <translation>The file of %1/%2 could not be read, so nothing can be added to it.</translation>
        </message>
        <message>
            <source>The changes to %1/%2 could not be read back.</source>
            <translation>The changes to %1/%2 could not be read back.</translation>
        </message>
        <message>
            <source>The journal of changes %1 is damaged; it was kept as %2.</source>
            <translation>The journal of changes %1 is damaged; it was kept as %2.</translation>
        </message>
        <message>
            <source>The last change before Penwick stopped was being written at that moment and is not in the book.</source>
            <translation>The last change before Penwick stopped was being written at that moment and is not in the book.</translation>
        </message>
        <message>
            <source>Some of the changes brought back could not be written to their months yet; they stay safe in the journal.</source>
            <translation>Some of the changes brought back could not be written to their months yet; they stay safe in the journal.</translation>
        </message>
        <message>
            <source>The journal of changes %1 could not be removed, so none of the stored entries has been renumbered and the lists are unchanged.</source>
            <translation>The journal of changes %1 could not be removed, so none of the stored entries has been renumbered and the lists are unchanged.</translation>
        </message>
        <message>
            <source>The file of %1/%2 could not be read, so the change cannot be taken back.</source>
            <translation>The file of %1/%2 could not be read, so the change cannot be taken back.</translation>
        </message>
        <message>
            <source>Change of Categories and Payways</source>
            <translation>Change of Categories and Payways</translation>
        </message>
        <message>
            <source>The entries of %1/%2 were changed since, so the change of the lists cannot be taken back.</source>
            <translation>The entries of %1/%2 were changed since, so the change of the lists cannot be taken back.</translation>
        </message>
        <message>
            <source>Taking back a change of the category and payway lists was cut short. The lists and the entries are as they were before it.</source>
            <translation>Taking back a change of the category and payway lists was cut short. The lists and the entries are as they were before it.</translation>
        </message>
        <message>
            <source>The file was changed outside Penwick and cannot be read, so it is left as it is.</source>
            <translation>The file was changed outside Penwick and cannot be read, so it is left as it is.</translation>
        </message>
        <message>
            <source>A sync service left copies of files in the data folder.</source>
            <translation>A sync service left copies of files in the data folder.</translation>
        </message>
        <message>
            <source>Penwick does not read these files and leaves them as they are. Compare each with the month it names, copy over what is missing, then remove it:
%1</source>
            <translation>Penwick does not read these files and leaves them as they are. Compare each with the month it names, copy over what is missing, then remove it:
%1</translation>
        </message>
        <message>
            <source>The file of %1 was removed from the data folder.</source>
            <translation>The file of %1 was removed from the data folder.</translation>
        </message>
        <message>
            <source>Not by Penwick, which keeps even an empty month as a file. The month stays as it is here and its file is written again at its next change. The file was &quot;%1&quot;.</source>
            <translation>Not by Penwick, which keeps even an empty month as a file. The month stays as it is here and its file is written again at its next change. The file was &quot;%1&quot;.</translation>
        </message>
        <message>
            <source>The file of %1 was changed outside Penwick and cannot be read.</source>
            <translation>The file of %1 was changed outside Penwick and cannot be read.</translation>
        </message>
        <message>
            <source>%1

The month stays as it is here, with your changes, and they replace the damaged file when it is saved.</source>
            <translation>%1

The month stays as it is here, with your changes, and they replace the damaged file when it is saved.</translation>
        </message>
        <message>
            <source>Here: %1</source>
            <translation>Here: %1</translation>
        </message>
        <message>
            <source>deleted</source>
            <translation>deleted</translation>
        </message>
        <message>
            <source>There: %1</source>
            <translation>There: %1</translation>
        </message>
        <message>
            <source>The memo was changed on both; it now holds both texts.</source>
            <translation>The memo was changed on both; it now holds both texts.</translation>
        </message>
        <message>
            <source>Entries of %1 were changed both here and on another computer.</source>
            <translation>Entries of %1 were changed both here and on another computer.</translation>
        </message>
        <message>
            <source>Both versions of each are kept in the month, nothing was thrown away. Look at these entries and delete the version that is wrong:

%1</source>
            <translation>Both versions of each are kept in the month, nothing was thrown away. Look at these entries and delete the version that is wrong:

%1</translation>
        </message>
        <message>
            <source>The category and payway lists were rearranged on another computer.</source>
            <translation>The category and payway lists were rearranged on another computer.</translation>
        </message>
        <message>
            <source>Its renumbered months are taken in as they arrive.</source>
            <translation>Its renumbered months are taken in as they arrive.</translation>
        </message>
        <message>
            <source>Its renumbered months are taken in as they arrive. Entries changed here in the meantime still carry the old numbers and may show another category or payway; look over: %1</source>
            <translation>Its renumbered months are taken in as they arrive. Entries changed here in the meantime still carry the old numbers and may show another category or payway; look over: %1</translation>
        </message>
        <message>
            <source>The data folder was changed on another computer.</source>
            <translation>The data folder was changed on another computer.</translation>
        </message>
        <message numerus="yes">
            <source>Import of %n Entries</source>
            <translation>
                <numerusform>Import of %n Entry</numerusform>
                <numerusform>Import of %n Entries</numerusform>
            </translation>
        </message>
        <message>
            <source>The import was cancelled; nothing was booked.</source>
            <translation>The import was cancelled; nothing was booked.</translation>
        </message>
        <message>
            <source>An import is being booked.</source>
            <translation>An import is being booked.</translation>
        </message>
        <message>
            <source>The category and payway lists are being changed.</source>
            <translation>The category and payway lists are being changed.</translation>
        </message>
        <message>
            <source>%1 The month is saved as soon as that is done.</source>
            <translation>%1 The month is saved as soon as that is done.</translation>
        </message>
        <message>
            <source>%1 Try again when that is done.</source>
            <translation>%1 Try again when that is done.</translation>
        </message>
        <message>
            <source>%1 was changed since, so the change of the lists cannot be taken back.</source>
            <translation>%1 was changed since, so the change of the lists cannot be taken back.</translation>
        </message>
        <message>
            <source>%1 was changed since, so the change cannot be taken back.</source>
            <translation>%1 was changed since, so the change cannot be taken back.</translation>
        </message>
        <message>
            <source>The file of %1/%2 could not be read, so nothing was booked.</source>
            <translation>The file of %1/%2 could not be read, so nothing was booked.</translation>
        </message>
        <message>
            <source>The entries could not be recorded, so nothing was booked.</source>
            <translation>The entries could not be recorded, so nothing was booked.</translation>
        </message>
    </context>
    <context>
        <name>ListEditorModel</name>
        <message>
            <source>Double-click to choose another colour.</source>
            <translation>Double-click to choose another colour.</translation>
        </message>
        <message>
            <source>Colour</source>
            <translation>Colour</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>Payway</translation>
        </message>
    </context>
    <context>
        <name>ListWinController</name>
        <message>
            <source>&amp;Previous Month</source>
            <translation>&amp;Previous Month</translation>
        </message>
        <message>
            <source>&amp;Next Month</source>
            <translation>&amp;Next Month</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Year</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Month</translation>
        </message>
        <message>
            <source>&amp;Edit Entries</source>
            <translation>&amp;Edit Entries</translation>
        </message>
        <message>
            <source>Change entries in place; a changed month moves the entry</source>
            <translation>Change entries in place; a changed month moves the entry</translation>
        </message>
        <message>
            <source>&amp;New Entry…</source>
            <translation>&amp;New Entry…</translation>
        </message>
        <message>
            <source>&amp;Delete Entries…</source>
            <translation>&amp;Delete Entries…</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Edit</translation>
        </message>
        <message>
            <source>New Entry…</source>
            <translation>New Entry…</translation>
        </message>
        <message>
            <source>Delete…</source>
            <translation>Delete…</translation>
        </message>
        <message>
            <source>Clear &amp;Search</source>
            <translation>Clear &amp;Search</translation>
        </message>
        <message>
            <source>Clear</source>
            <translation>Clear</translation>
        </message>
        <message>
            <source>Show every entry of the month</source>
            <translation>Show every entry of the month</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;File</translation>
        </message>
        <message>
            <source>&amp;Print…</source>
            <translation>&amp;Print…</translation>
        </message>
        <message>
            <source>&amp;Export as PDF…</source>
            <translation>&amp;Export as PDF…</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Close</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>&amp;Edit</translation>
        </message>
        <message>
            <source>&amp;View</source>
            <translation>&amp;View</translation>
        </message>
        <message>
            <source>%1 %2, closing on day %3</source>
            <translation>%1 %2, closing on day %3</translation>
        </message>
        <message>
            <source>%1 %2</source>
            <translation>%1 %2</translation>
        </message>
        <message>
            <source>%1 – Entries</source>
            <translation>%1 – Entries</translation>
        </message>
        <message>
            <source>Double-click a cell to change it. A changed month or year moves the entry there.</source>
            <translation>Double-click a cell to change it. A changed month or year moves the entry there.</translation>
        </message>
        <message>
            <source>Delete Entries</source>
            <translation>Delete Entries</translation>
        </message>
        <message numerus="yes">
            <source>Delete %n selected entries?</source>
            <translation>
                <numerusform>Delete the selected entry?</numerusform>
                <numerusform>Delete %n selected entries?</numerusform>
            </translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Delete</translation>
        </message>
        <message>
            <source>Entries found by: %1</source>
            <translation>Entries found by: %1</translation>
        </message>
        <message>
            <source>Export as PDF</source>
            <translation>Export as PDF</translation>
        </message>
        <message>
            <source>PDF documents (*.pdf)</source>
            <translation>PDF documents (*.pdf)</translation>
        </message>
        <message>
            <source>The PDF could not be written to %1.</source>
            <translation>The PDF could not be written to %1.</translation>
        </message>
        <message>
            <source>Not saved: %1. Penwick tries again every 30 seconds and at every change.</source>
            <translation>Not saved: %1. Penwick tries again every 30 seconds and at every change.</translation>
        </message>
        <message>
            <source>Edit &gt; Undo brings them back.</source>
            <translation>Edit &gt; Undo brings them back.</translation>
        </message>
        <message>
            <source>Deletion of an Entry</source>
            <translation>Deletion of an Entry</translation>
        </message>
        <message>
            <source>Deletion of %1 Entries</source>
            <translation>Deletion of %1 Entries</translation>
        </message>
        <message>
            <source>Export as &amp;CSV</source>
            <translation>Export as &amp;CSV</translation>
        </message>
        <message>
            <source>The &amp;Month Shown…</source>
            <translation>The &amp;Month Shown…</translation>
        </message>
        <message>
            <source>The &amp;Year…</source>
            <translation>The &amp;Year…</translation>
        </message>
        <message>
            <source>The &amp;Search Result…</source>
            <translation>The &amp;Search Result…</translation>
        </message>
        <message>
            <source>&amp;Everything…</source>
            <translation>&amp;Everything…</translation>
        </message>
        <message>
            <source>Export as CSV</source>
            <translation>Export as CSV</translation>
        </message>
        <message>
            <source>Nothing was exported: %1</source>
            <translation>Nothing was exported: %1</translation>
        </message>
        <message>
            <source>penwick-all</source>
            <translation>penwick-all</translation>
        </message>
        <message>
            <source>-search</source>
            <translation>-search</translation>
        </message>
        <message>
            <source>CSV files (*.csv)</source>
            <translation>CSV files (*.csv)</translation>
        </message>
        <message>
            <source>The CSV file could not be written to %1: %2</source>
            <translation>The CSV file could not be written to %1: %2</translation>
        </message>
        <message>
            <source>Make &amp;Recurring…</source>
            <translation>Make &amp;Recurring…</translation>
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
            <translation>%1/%2</translation>
        </message>
        <message>
            <source>LineGraph MonthLabel Format</source>
            <translation>%1</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Input Data before Quit</source>
            <translation>Book the typed entries before quitting?</translation>
        </message>
        <message>
            <source>Quit Input Alert</source>
            <translation>Some typed entries have not been booked yet. If you quit without booking them, they are lost.</translation>
        </message>
        <message>
            <source>Input and Quit</source>
            <translation>Book and Quit</translation>
        </message>
        <message>
            <source>Quit without Quit</source>
            <translation>Quit Without Booking</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>Data Category is not selected</source>
            <translation>Some rows have no category.</translation>
        </message>
        <message>
            <source>Ignore unselected data</source>
            <translation>If you book now, rows without a category are left out. Choose a category for them, or book the other rows.</translation>
        </message>
        <message>
            <source>Select</source>
            <translation>Choose Categories</translation>
        </message>
        <message>
            <source>Input</source>
            <translation>Book Other Rows</translation>
        </message>
        <message>
            <source>Balance of last month</source>
            <translation>Balance of last month: %1</translation>
        </message>
        <message>
            <source>Income</source>
            <translation>Income</translation>
        </message>
    </context>
    <context>
        <name>MergeItemDialog</name>
        <message>
            <source>Delete Item</source>
            <translation>Delete Item</translation>
        </message>
        <message>
            <source>&lt;b&gt;Delete “%1”?&lt;/b&gt;&lt;br&gt;Entries booked under it, in every month, are kept and moved to another item.</source>
            <translation>&lt;b&gt;Delete “%1”?&lt;/b&gt;&lt;br&gt;Entries booked under it, in every month, are kept and moved to another item.</translation>
        </message>
        <message>
            <source>&amp;Move its entries to:</source>
            <translation>&amp;Move its entries to:</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Delete</translation>
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
            <translation>%1, %2: %3 (%4)</translation>
        </message>
        <message>
            <source>%1: %2 (%3)</source>
            <comment>category: amount (share)</comment>
            <translation>%1: %2 (%3)</translation>
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
        <name>PrefWinController</name>
        <message>
            <source>&amp;Appearance:</source>
            <translation>&amp;Appearance:</translation>
        </message>
        <message>
            <source>System looks as the desktop has it; Light and Dark use Penwick's own colours.</source>
            <translation>System looks as the desktop has it; Light and Dark use Penwick's own colours.</translation>
        </message>
        <message>
            <source>Dark</source>
            <translation>Dark</translation>
        </message>
        <message>
            <source>Light</source>
            <translation>Light</translation>
        </message>
        <message>
            <source>System</source>
            <translation>System</translation>
        </message>
        <message>
            <source>Preferences</source>
            <translation>Preferences</translation>
        </message>
        <message>
            <source>&lt;b&gt;Welcome to Penwick.&lt;/b&gt; Look through the categories and payways you will book entries under, and choose where your account book is kept. You can change all of this later in the preferences.</source>
            <translation>&lt;b&gt;Welcome to Penwick.&lt;/b&gt; Look through the categories and payways you will book entries under, and choose where your account book is kept. You can change all of this later in the preferences.</translation>
        </message>
        <message>
            <source>Drag a category to change the order. Income always comes last and is not edited here.</source>
            <translation>Drag a category to change the order. Income always comes last and is not edited here.</translation>
        </message>
        <message>
            <source>&amp;Categories</source>
            <translation>&amp;Categories</translation>
        </message>
        <message>
            <source>Drag a payway to change the order.</source>
            <translation>Drag a payway to change the order.</translation>
        </message>
        <message>
            <source>&amp;Payways</source>
            <translation>&amp;Payways</translation>
        </message>
        <message>
            <source>&amp;General</source>
            <translation>&amp;General</translation>
        </message>
        <message>
            <source>&amp;Add</source>
            <translation>&amp;Add</translation>
        </message>
        <message>
            <source>&amp;Delete…</source>
            <translation>&amp;Delete…</translation>
        </message>
        <message>
            <source>C&amp;olour…</source>
            <translation>C&amp;olour…</translation>
        </message>
        <message>
            <source>C&amp;hoose…</source>
            <translation>C&amp;hoose…</translation>
        </message>
        <message>
            <source>Data folder:</source>
            <translation>Data folder:</translation>
        </message>
        <message>
            <source>&amp;Input window</source>
            <translation>&amp;Input window</translation>
        </message>
        <message>
            <source>&amp;List window</source>
            <translation>&amp;List window</translation>
        </message>
        <message>
            <source>G&amp;raph window</source>
            <translation>G&amp;raph window</translation>
        </message>
        <message>
            <source>&amp;Balance window</source>
            <translation>&amp;Balance window</translation>
        </message>
        <message>
            <source>Open at start:</source>
            <translation>Open at start:</translation>
        </message>
        <message>
            <source>Close each &amp;month on day</source>
            <translation>Close each &amp;month on day</translation>
        </message>
        <message>
            <source>Entries after this day count towards the next month.</source>
            <translation>Entries after this day count towards the next month.</translation>
        </message>
        <message>
            <source>Closing day:</source>
            <translation>Closing day:</translation>
        </message>
        <message>
            <source>Presses OK</source>
            <translation>Presses OK</translation>
        </message>
        <message>
            <source>Presses Input</source>
            <translation>Presses Input</translation>
        </message>
        <message>
            <source>Does nothing</source>
            <translation>Does nothing</translation>
        </message>
        <message>
            <source>Return &amp;key in the input window:</source>
            <translation>Return &amp;key in the input window:</translation>
        </message>
        <message>
            <source>Change Pass&amp;word…</source>
            <translation>Change Pass&amp;word…</translation>
        </message>
        <message>
            <source>Password:</source>
            <translation>Password:</translation>
        </message>
        <message>
            <source>No password is asked for at start.</source>
            <translation>No password is asked for at start.</translation>
        </message>
        <message>
            <source>A password is asked for at start.</source>
            <translation>A password is asked for at start.</translation>
        </message>
        <message>
            <source>Untitled</source>
            <translation>Untitled</translation>
        </message>
        <message>
            <source>Colour of “%1”</source>
            <translation>Colour of “%1”</translation>
        </message>
        <message>
            <source>Choose the Data Folder</source>
            <translation>Choose the Data Folder</translation>
        </message>
        <message>
            <source>Choose</source>
            <translation>Choose</translation>
        </message>
        <message>
            <source>Penwick cannot keep its data in this folder.</source>
            <translation>Penwick cannot keep its data in this folder.</translation>
        </message>
        <message>
            <source>The folder %1 cannot be written to. Choose a folder you may change.</source>
            <translation>The folder %1 cannot be written to. Choose a folder you may change.</translation>
        </message>
        <message>
            <source>The data folder was not changed.</source>
            <translation>The data folder was not changed.</translation>
        </message>
        <message>
            <source>Some months could not be saved in the current folder. They stay loaded so that nothing is lost; free some disk space or check the folder's permissions, then try again.</source>
            <translation>Some months could not be saved in the current folder. They stay loaded so that nothing is lost; free some disk space or check the folder's permissions, then try again.</translation>
        </message>
        <message>
            <source>The new data folder needs attention.</source>
            <translation>The new data folder needs attention.</translation>
        </message>
        <message>
            <source>Renumbering the stored entries…</source>
            <translation>Renumbering the stored entries…</translation>
        </message>
        <message>
            <source>The lists were not changed.</source>
            <translation>The lists were not changed.</translation>
        </message>
        <message>
            <source>&amp;Reset Colours</source>
            <translation>&amp;Reset Colours</translation>
        </message>
        <message>
            <source>Give every category its colour from the palette again</source>
            <translation>Give every category its colour from the palette again</translation>
        </message>
        <message>
            <source>The categories or payways were changed elsewhere while this window was open (by Undo or Redo). The window now shows them as they are; make your changes again.</source>
            <translation>The categories or payways were changed elsewhere while this window was open (by Undo or Redo). The window now shows them as they are; make your changes again.</translation>
        </message>
    </context>
    <context>
        <name>ScriptApplication</name>
        <message>
            <source>Penwick is locked: enter the password in the program first.</source>
            <translation>Penwick is locked: enter the password in the program first.</translation>
        </message>
        <message>
            <source>at index %1</source>
            <translation>at index %1</translation>
        </message>
        <message>
            <source>'%1' is not a month (YYYYMM), a year (YYYY) or all</source>
            <translation>'%1' is not a month (YYYYMM), a year (YYYY) or all</translation>
        </message>
        <message>
            <source>&apos;%1&apos; is not csv, qif, ofx or xhb</source>
            <translation>&apos;%1&apos; is not csv, qif, ofx or xhb</translation>
        </message>
        <message>
            <source>&apos;%1&apos; is not a month (YYYYMM)</source>
            <translation>&apos;%1&apos; is not a month (YYYYMM)</translation>
        </message>
    </context>
    <context>
        <name>ScriptDataList</name>
        <message>
            <source>Penwick is locked: enter the password in the program first.</source>
            <translation>Penwick is locked: enter the password in the program first.</translation>
        </message>
    </context>
    <context>
        <name>SearchService</name>
        <message>
            <source>There is no session bus: %1</source>
            <translation>There is no session bus: %1</translation>
        </message>
        <message>
            <source>The search objects could not be registered.</source>
            <translation>The search objects could not be registered.</translation>
        </message>
        <message>
            <source>Another program already answers searches as %1.</source>
            <translation>Another program already answers searches as %1.</translation>
        </message>
    </context>
    <context>
        <name>ScriptService</name>
        <message>
            <source>There is no session bus: %1</source>
            <translation>There is no session bus: %1</translation>
        </message>
        <message>
            <source>The scripting object could not be registered.</source>
            <translation>The scripting object could not be registered.</translation>
        </message>
        <message>
            <source>Another program already answers scripts as %1.</source>
            <translation>Another program already answers scripts as %1.</translation>
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
            <source>The password is saved as soon as you press OK here, even if you then cancel the preferences. Leave the new password empty to remove it.</source>
            <translation>The password is saved as soon as you press OK here, even if you then cancel the preferences. Leave the new password empty to remove it.</translation>
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
        <message>
            <source>Another Penwick already works on the data folder "%1".</source>
            <translation>Another Penwick already works on the data folder "%1".</translation>
        </message>
    </context>
    <context>
        <name>StringUtility</name>
        <message>
            <source>Space Character</source>
            <translation> </translation>
        </message>
        <message>
            <source>Kuten Character</source>
            <translation>,</translation>
        </message>
        <message>
            <source>Minus Character</source>
            <translation>-</translation>
        </message>
        <message>
            <source>Tilde Character</source>
            <translation>~</translation>
        </message>
    </context>
    <context>
        <name>main</name>
        <message>
            <source>--appearance takes system, light or dark, not %1.</source>
            <translation>--appearance takes system, light or dark, not %1.</translation>
        </message>
        <message>
            <source>Look as the desktop has it (system), or light or dark, for this run only; the preferences keep their choice.</source>
            <translation>Look as the desktop has it (system), or light or dark, for this run only; the preferences keep their choice.</translation>
        </message>
        <message>
            <source>Start without a window, to answer the desktop's search; the windows open when the program is launched again.</source>
            <translation>Start without a window, to answer the desktop's search; the windows open when the program is launched again.</translation>
        </message>
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
    <context>
        <name>DurableFile</name>
        <message>
            <source>%1 could not be written: %2</source>
            <translation>%1 could not be written: %2</translation>
        </message>
        <message>
            <source>%1 could not be replaced: %2</source>
            <translation>%1 could not be replaced: %2</translation>
        </message>
        <message>
            <source>The folder %1 could not be written to disk: %2</source>
            <translation>The folder %1 could not be written to disk: %2</translation>
        </message>
    </context>
    <context>
        <name>EntryCheck</name>
        <message>
            <source>The %1 "%2" is not a whole number.</source>
            <translation>The %1 "%2" is not a whole number.</translation>
        </message>
        <message>
            <source>The year %1 is not within %2 to %3.</source>
            <translation>The year %1 is not within %2 to %3.</translation>
        </message>
        <message>
            <source>category</source>
            <translation>category</translation>
        </message>
        <message>
            <source>payway</source>
            <translation>payway</translation>
        </message>
        <message>
            <source>There is no %1 %2; there are %3, counted from 0.</source>
            <translation>There is no %1 %2; there are %3, counted from 0.</translation>
        </message>
        <message>
            <source>The amount "%1" is not a number.</source>
            <translation>The amount "%1" is not a number.</translation>
        </message>
        <message>
            <source>The details are not a text.</source>
            <translation>The details are not a text.</translation>
        </message>
        <message>
            <source>The month %1 is not within 1 to 12.</source>
            <translation>The month %1 is not within 1 to 12.</translation>
        </message>
        <message>
            <source>The day %1 is not within 1 to %2 of %3/%4.</source>
            <translation>The day %1 is not within 1 to %2 of %3/%4.</translation>
        </message>
        <message>
            <source>The amount is not a number.</source>
            <translation>The amount is not a number.</translation>
        </message>
        <message>
            <source>The amount is infinite, as after a division by zero.</source>
            <translation>The amount is infinite, as after a division by zero.</translation>
        </message>
        <message>
            <source>The amount %1 is larger than an entry can hold.</source>
            <translation>The amount %1 is larger than an entry can hold.</translation>
        </message>
    </context>
    <context>
        <name>ListFile</name>
        <message>
            <source>it has no %1</source>
            <translation>it has no %1</translation>
        </message>
        <message>
            <source>its %1 is not a list of names</source>
            <translation>its %1 is not a list of names</translation>
        </message>
        <message>
            <source>its %1 is empty</source>
            <translation>its %1 is empty</translation>
        </message>
        <message>
            <source>its %1 is not a list of colours</source>
            <translation>its %1 is not a list of colours</translation>
        </message>
        <message>
            <source>it holds no dictionary</source>
            <translation>it holds no dictionary</translation>
        </message>
        <message>
            <source>The list file %1 cannot be read: %2</source>
            <translation>The list file %1 cannot be read: %2</translation>
        </message>
    </context>
    <context>
        <name>RescueFolder</name>
        <message>
            <source>The folder %1 could not be made.</source>
            <translation>The folder %1 could not be made.</translation>
        </message>
        <message>
            <source>the name does not stand for a month</source>
            <translation>the name does not stand for a month</translation>
        </message>
        <message>
            <source>there is no such month</source>
            <translation>there is no such month</translation>
        </message>
        <message>
            <source>the month's own file cannot be read</source>
            <translation>the month's own file cannot be read</translation>
        </message>
        <message>
            <source>%1: brought back as it was</source>
            <translation>%1: brought back as it was</translation>
        </message>
        <message>
            <source>%1: its file had changed since, so the entries it lacked were added</source>
            <translation>%1: its file had changed since, so the entries it lacked were added</translation>
        </message>
    </context>
    <context>
        <name>ScriptCommands</name>
        <message>
            <source>The entry could not be booked: the file of its month cannot be read.</source>
            <translation>The entry could not be booked: the file of its month cannot be read.</translation>
        </message>
        <message>
            <source>The entry was not booked: %1</source>
            <translation>The entry was not booked: %1</translation>
        </message>
        <message>
            <source>There is no month %1.</source>
            <translation>There is no month %1.</translation>
        </message>
        <message>
            <source>The entries of %1/%2 cannot be read: %3</source>
            <translation>The entries of %1/%2 cannot be read: %3</translation>
        </message>
        <message>
            <source>Booking by a Script</source>
            <translation>Booking by a Script</translation>
        </message>
    </context>
    <context>
        <name>ListSearchPanel</name>
        <message>
            <source>e.g. 1,5,10-12</source>
            <translation>e.g. 1,5,10-12</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Any of these words</source>
            <translation>Any of these words</translation>
        </message>
        <message>
            <source>From</source>
            <translation>From</translation>
        </message>
        <message>
            <source>To</source>
            <translation>To</translation>
        </message>
        <message>
            <source>Payment method</source>
            <translation>Payment method</translation>
        </message>
        <message>
            <source>&amp;Days:</source>
            <translation>&amp;Days:</translation>
        </message>
        <message>
            <source>&amp;Words:</source>
            <translation>&amp;Words:</translation>
        </message>
        <message>
            <source>&amp;Amount:</source>
            <translation>&amp;Amount:</translation>
        </message>
        <message>
            <source>days %1</source>
            <translation>days %1</translation>
        </message>
        <message>
            <source>words %1</source>
            <translation>words %1</translation>
        </message>
        <message>
            <source>from %1</source>
            <translation>from %1</translation>
        </message>
        <message>
            <source>up to %1</source>
            <translation>up to %1</translation>
        </message>
    </context>
    <context>
        <name>MonthMemo</name>
        <message>
            <source>Memo</source>
            <translation>Memo</translation>
        </message>
        <message>
            <source>This month's file could not be read.</source>
            <translation>This month's file could not be read.</translation>
        </message>
        <message>
            <source>Notes on %1 %2</source>
            <translation>Notes on %1 %2</translation>
        </message>
        <message>
            <source>Memo Edit</source>
            <translation>Memo Edit</translation>
        </message>
    </context>
    <context>
        <name>MonthTotalsPane</name>
        <message>
            <source>This Month</source>
            <translation>This Month</translation>
        </message>
        <message>
            <source>Spending:</source>
            <translation>Spending:</translation>
        </message>
        <message>
            <source>Income:</source>
            <translation>Income:</translation>
        </message>
        <message>
            <source>Balance:</source>
            <translation>Balance:</translation>
        </message>
        <message>
            <source>Shown Entries</source>
            <translation>Shown Entries</translation>
        </message>
        <message>
            <source>Share of the month:</source>
            <translation>Share of the month:</translation>
        </message>
        <message>
            <source>%1 %</source>
            <translation>%1 %</translation>
        </message>
        <message>
            <source>Spending</source>
            <translation>Spending</translation>
        </message>
        <message>
            <source>Income</source>
            <translation>Income</translation>
        </message>
        <message>
            <source>Balance</source>
            <translation>Balance</translation>
        </message>
        <message>
            <source>Spending of the entries shown</source>
            <translation>Spending of the entries shown</translation>
        </message>
        <message>
            <source>Share of the month</source>
            <translation>Share of the month</translation>
        </message>
        <message>
            <source>Balance of the entries shown</source>
            <translation>Balance of the entries shown</translation>
        </message>
    </context>
    <context>
        <name>EntryTableView</name>
        <message>
            <source>&amp;Columns</source>
            <translation>&amp;Columns</translation>
        </message>
    </context>
    <context>
        <name>InputDateBar</name>
        <message>
            <source>&amp;Date:</source>
            <translation>&amp;Date:</translation>
        </message>
        <message>
            <source>Year</source>
            <translation>Year</translation>
        </message>
        <message>
            <source>Month</source>
            <translation>Month</translation>
        </message>
        <message>
            <source>Day</source>
            <translation>Day</translation>
        </message>
        <message>
            <source>Previous day</source>
            <translation>Previous day</translation>
        </message>
        <message>
            <source>Next day</source>
            <translation>Next day</translation>
        </message>
    </context>
    <context>
        <name>InputSheets</name>
        <message>
            <source>The amount in row %1 cannot be booked.</source>
            <translation>The amount in row %1 cannot be booked.</translation>
        </message>
        <message>
            <source>Book into the year %1?</source>
            <translation>Book into the year %1?</translation>
        </message>
        <message>
            <source>Book into the years %1?</source>
            <translation>Book into the years %1?</translation>
        </message>
        <message>
            <source>That is more than a year away from today.</source>
            <translation>That is more than a year away from today.</translation>
        </message>
        <message>
            <source>Book</source>
            <translation>Book</translation>
        </message>
        <message>
            <source>Change the Year</source>
            <translation>Change the Year</translation>
        </message>
        <message>
            <source>Some entries were not booked and are still here.</source>
            <translation>Some entries were not booked and are still here.</translation>
        </message>
    </context>
    <context>
        <name>InputRowList</name>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>Payway</translation>
        </message>
        <message>
            <source>&amp;Add Row</source>
            <translation>&amp;Add Row</translation>
        </message>
        <message>
            <source>Spending total:</source>
            <translation>Spending total:</translation>
        </message>
        <message>
            <source>Spending total</source>
            <translation>Spending total</translation>
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
            <translation>Some months could not be saved.</translation>
        </message>
        <message>
            <source>%1

Free some disk space or check the folder's permissions and try again, or save a copy of these months elsewhere and bring it back later.</source>
            <translation>%1

Free some disk space or check the folder's permissions and try again, or save a copy of these months elsewhere and bring it back later.</translation>
        </message>
        <message>
            <source>Try Again</source>
            <translation>Try Again</translation>
        </message>
        <message>
            <source>Save a Copy…</source>
            <translation>Save a Copy…</translation>
        </message>
        <message>
            <source>Quit Without Saving</source>
            <translation>Quit Without Saving</translation>
        </message>
        <message>
            <source>The copy could not be saved either.</source>
            <translation>The copy could not be saved either.</translation>
        </message>
        <message>
            <source>Months that could not be saved on %1 were kept.</source>
            <translation>Months that could not be saved on %1 were kept.</translation>
        </message>
        <message>
            <source>%1

They are in %2. Bring them back into the data folder now?</source>
            <translation>%1

They are in %2. Bring them back into the data folder now?</translation>
        </message>
        <message>
            <source>Bring Back</source>
            <translation>Bring Back</translation>
        </message>
        <message>
            <source>Not Now</source>
            <translation>Not Now</translation>
        </message>
        <message>
            <source>Discard…</source>
            <translation>Discard…</translation>
        </message>
        <message>
            <source>Not every kept month could be brought back; the copy stays.</source>
            <translation>Not every kept month could be brought back; the copy stays.</translation>
        </message>
        <message>
            <source>Throw the kept months away for good?</source>
            <translation>Throw the kept months away for good?</translation>
        </message>
        <message>
            <source>Throw Away</source>
            <translation>Throw Away</translation>
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
            <source>The category and payway lists could not be read.</source>
            <translation>The category and payway lists could not be read.</translation>
        </message>
        <message>
            <source>%1

The file "%2" is left exactly as it is, and nothing can be booked until it is mended or replaced.</source>
            <translation>%1

The file "%2" is left exactly as it is, and nothing can be booked until it is mended or replaced.</translation>
        </message>
        <message>
            <source>The entries of %1 could not be saved.</source>
            <translation>The entries of %1 could not be saved.</translation>
        </message>
        <message>
            <source>%1

The changes are kept in memory, and Penwick tries again every 30 seconds and at every change. Free some disk space or check the folder's permissions.</source>
            <translation>%1

The changes are kept in memory, and Penwick tries again every 30 seconds and at every change. Free some disk space or check the folder's permissions.</translation>
        </message>
        <message>
            <source>Penwick found %1 problems.</source>
            <translation>Penwick found %1 problems.</translation>
        </message>
        <message>
            <source>

Show Details… tells more of each.</source>
            <translation>

Show Details… tells more of each.</translation>
        </message>
    </context>
    <context>
        <name>ChangeJournal</name>
        <message>
            <source>%1 could not be opened: %2</source>
            <translation>%1 could not be opened: %2</translation>
        </message>
        <message>
            <source>%1 could not be written: %2</source>
            <translation>%1 could not be written: %2</translation>
        </message>
        <message>
            <source>%1 could not be removed: %2</source>
            <translation>%1 could not be removed: %2</translation>
        </message>
        <message>
            <source>%1 could not be read: %2</source>
            <translation>%1 could not be read: %2</translation>
        </message>
    </context>
    <context>
        <name>UndoHistory</name>
        <message>
            <source>Change</source>
            <translation>Change</translation>
        </message>
        <message>
            <source>&amp;Undo %1</source>
            <translation>&amp;Undo %1</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Undo</translation>
        </message>
        <message>
            <source>&amp;Redo %1</source>
            <translation>&amp;Redo %1</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Redo</translation>
        </message>
        <message>
            <source>“%1” could not be undone.</source>
            <translation>“%1” could not be undone.</translation>
        </message>
        <message>
            <source>“%1” could not be redone.</source>
            <translation>“%1” could not be redone.</translation>
        </message>
    </context>
    <context>
        <name>CsvExport</name>
        <message>
            <source>%1/%2 cannot be read: %3</source>
            <translation>%1/%2 cannot be read: %3</translation>
        </message>
    </context>
    <context>
        <name>Importer</name>
        <message>
            <source>The encoding %1 is not known.</source>
            <translation>The encoding %1 is not known.</translation>
        </message>
        <message>
            <source>The file holds no rows.</source>
            <translation>The file holds no rows.</translation>
        </message>
        <message>
            <source>No column of dates and amounts was found; choose the columns.</source>
            <translation>No column of dates and amounts was found; choose the columns.</translation>
        </message>
        <message>
            <source>The date is missing.</source>
            <translation>The date is missing.</translation>
        </message>
        <message>
            <source>'%1' is not a date.</source>
            <translation>'%1' is not a date.</translation>
        </message>
        <message>
            <source>'%1' is not an amount.</source>
            <translation>'%1' is not an amount.</translation>
        </message>
        <message>
            <source>The amount is missing.</source>
            <translation>The amount is missing.</translation>
        </message>
        <message>
            <source>This is not a HomeBank file.</source>
            <translation>This is not a HomeBank file.</translation>
        </message>
        <message>
            <source>The HomeBank file is damaged at line %1: %2</source>
            <translation>The HomeBank file is damaged at line %1: %2</translation>
        </message>
        <message>
            <source>This is not an OFX file.</source>
            <translation>This is not an OFX file.</translation>
        </message>
        <message>
            <source>The file cannot be read: %1</source>
            <translation>The file cannot be read: %1</translation>
        </message>
        <message>
            <source>This is not a QIF file: it has no !Type line.</source>
            <translation>This is not a QIF file: it has no !Type line.</translation>
        </message>
    </context>
    <context>
        <name>LedgerImport</name>
        <message numerus="yes">
            <source>%1/%2: %n</source>
            <translation>
                <numerusform>%1/%2: %n</numerusform>
                <numerusform>%1/%2: %n</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>%n entries into %1 months</source>
            <translation>
                <numerusform>%n entry into %1 months</numerusform>
                <numerusform>%n entries into %1 months</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Skipped as booked already: %n</source>
            <translation>
                <numerusform>Skipped as booked already: %n</numerusform>
                <numerusform>Skipped as booked already: %n</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Left out: %n</source>
            <translation>
                <numerusform>Left out: %n</numerusform>
                <numerusform>Left out: %n</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>Rows that could not be read: %n</source>
            <translation>
                <numerusform>Rows that could not be read: %n</numerusform>
                <numerusform>Rows that could not be read: %n</numerusform>
            </translation>
        </message>
        <message>
            <source>New category: %1</source>
            <translation>New category: %1</translation>
        </message>
        <message>
            <source>Categories without a match (booked as %1): %2</source>
            <translation>Categories without a match (booked as %1): %2</translation>
        </message>
        <message>
            <source>The categories were changed meanwhile; start the import again.</source>
            <translation>The categories were changed meanwhile; start the import again.</translation>
        </message>
        <message>
            <source>No entry is ticked for booking.</source>
            <translation>No entry is ticked for booking.</translation>
        </message>
    </context>
    <context>
        <name>ImportPreviewModel</name>
        <message>
            <source>In the file: %1</source>
            <translation>In the file: %1</translation>
        </message>
        <message>
            <source>Booked already</source>
            <translation>Booked already</translation>
        </message>
        <message>
            <source>No category &quot;%1&quot;</source>
            <translation>No category &quot;%1&quot;</translation>
        </message>
        <message>
            <source>Book</source>
            <translation>Book</translation>
        </message>
        <message>
            <source>Line</source>
            <translation>Line</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>Payway</translation>
        </message>
        <message>
            <source>Note</source>
            <translation>Note</translation>
        </message>
    </context>
    <context>
        <name>ImportDialog</name>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Money out</source>
            <translation>Money out</translation>
        </message>
        <message>
            <source>Money in</source>
            <translation>Money in</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>Payway</translation>
        </message>
        <message>
            <source>(not imported)</source>
            <translation>(not imported)</translation>
        </message>
        <message>
            <source>Day, month, year</source>
            <translation>Day, month, year</translation>
        </message>
        <message>
            <source>Month, day, year</source>
            <translation>Month, day, year</translation>
        </message>
        <message>
            <source>Year, month, day</source>
            <translation>Year, month, day</translation>
        </message>
        <message>
            <source>Import %1</source>
            <translation>Import %1</translation>
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
            <translation>OFX or QFX</translation>
        </message>
        <message>
            <source>HomeBank</source>
            <translation>HomeBank</translation>
        </message>
        <message>
            <source>&amp;Format:</source>
            <translation>&amp;Format:</translation>
        </message>
        <message>
            <source>A new category:</source>
            <translation>A new category:</translation>
        </message>
        <message>
            <source>Imported</source>
            <translation>Imported</translation>
        </message>
        <message>
            <source>Categories &amp;without a match:</source>
            <translation>Categories &amp;without a match:</translation>
        </message>
        <message>
            <source>Rows that could not be read (never booked):</source>
            <translation>Rows that could not be read (never booked):</translation>
        </message>
        <message>
            <source>&amp;Import</source>
            <translation>&amp;Import</translation>
        </message>
        <message>
            <source>Import</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>Nothing was imported.</source>
            <translation>Nothing was imported.</translation>
        </message>
        <message>
            <source>The import is booked.</source>
            <translation>The import is booked.</translation>
        </message>
        <message>
            <source>Japanese (Shift_JIS, CP932)</source>
            <translation>Japanese (Shift_JIS, CP932)</translation>
        </message>
        <message>
            <source>Japanese (EUC-JP)</source>
            <translation>Japanese (EUC-JP)</translation>
        </message>
        <message>
            <source>Western (Windows-1252)</source>
            <translation>Western (Windows-1252)</translation>
        </message>
        <message>
            <source>&amp;Encoding:</source>
            <translation>&amp;Encoding:</translation>
        </message>
        <message>
            <source>&amp;Dates:</source>
            <translation>&amp;Dates:</translation>
        </message>
        <message>
            <source>First row &amp;names the columns</source>
            <translation>First row &amp;names the columns</translation>
        </message>
        <message>
            <source>Column %1</source>
            <translation>Column %1</translation>
        </message>
        <message>
            <source>Line %1: %2</source>
            <translation>Line %1: %2</translation>
        </message>
        <message>
            <source>The dates of this file can be read more than one way.</source>
            <translation>The dates of this file can be read more than one way.</translation>
        </message>
        <message numerus="yes">
            <source>Booking %n entries…</source>
            <translation>
                <numerusform>Booking %n entry…</numerusform>
                <numerusform>Booking %n entries…</numerusform>
            </translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Cancel</translation>
        </message>
        <message>
            <source>List</source>
            <translation>List</translation>
        </message>
        <message>
            <source>In the file</source>
            <translation>In the file</translation>
        </message>
        <message>
            <source>Booked as</source>
            <translation>Booked as</translation>
        </message>
        <message>
            <source>Names without a &amp;match:</source>
            <translation>Names without a &amp;match:</translation>
        </message>
        <message>
            <source>%1 booked as</source>
            <translation>%1 booked as</translation>
        </message>
        <message>
            <source>Like the others (%1)</source>
            <translation>Like the others (%1)</translation>
        </message>
    </context>
    <context>
        <name>FileToImport</name>
        <message>
            <source>%1 cannot be read: %2</source>
            <translation>%1 cannot be read: %2</translation>
        </message>
        <message>
            <source>%1 is empty.</source>
            <translation>%1 is empty.</translation>
        </message>
    </context>
    <context>
        <name>ImportMapping</name>
        <message>
            <source>&apos;%1&apos; is not of the form SOURCE=CATEGORY.</source>
            <translation>&apos;%1&apos; is not of the form SOURCE=CATEGORY.</translation>
        </message>
        <message>
            <source>There is no category &apos;%1&apos;.</source>
            <translation>There is no category &apos;%1&apos;.</translation>
        </message>
    </context>
    <context>
        <name>DueDialog</name>
        <message>
            <source>Scheduled Entries Due</source>
            <translation>Scheduled Entries Due</translation>
        </message>
        <message>
            <source>These scheduled entries are due. Change what differs this time, and untick those that are not to be booked: they are skipped.</source>
            <translation>These scheduled entries are due. Change what differs this time, and untick those that are not to be booked: they are skipped.</translation>
        </message>
        <message>
            <source>Book</source>
            <translation>Book</translation>
        </message>
        <message>
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>Payway</translation>
        </message>
        <message>
            <source>&amp;Book</source>
            <translation>&amp;Book</translation>
        </message>
        <message>
            <source>&amp;Later</source>
            <translation>&amp;Later</translation>
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
            <translation>%1 cannot be read (%2), so none of the stored entries has been renumbered and the lists are unchanged. Mend or remove it first.</translation>
        </message>
    </context>
    <context>
        <name>Schedule</name>
        <message>
            <source>The schedule needs a start date.</source>
            <translation>The schedule needs a start date.</translation>
        </message>
        <message>
            <source>It must repeat at least every 1 month, week or year.</source>
            <translation>It must repeat at least every 1 month, week or year.</translation>
        </message>
        <message>
            <source>The day of the month must be from 1 to 31.</source>
            <translation>The day of the month must be from 1 to 31.</translation>
        </message>
        <message>
            <source>The weekday must be from Monday to Sunday.</source>
            <translation>The weekday must be from Monday to Sunday.</translation>
        </message>
        <message>
            <source>The month must be from 1 to 12.</source>
            <translation>The month must be from 1 to 12.</translation>
        </message>
        <message>
            <source>That month has no day %1.</source>
            <translation>That month has no day %1.</translation>
        </message>
        <message>
            <source>The end comes before the start.</source>
            <translation>The end comes before the start.</translation>
        </message>
        <message>
            <source>It must happen at least once.</source>
            <translation>It must happen at least once.</translation>
        </message>
        <message>
            <source>No date of the rule falls between the start and the end.</source>
            <translation>No date of the rule falls between the start and the end.</translation>
        </message>
        <message>
            <source>Every month on day %1</source>
            <translation>Every month on day %1</translation>
        </message>
        <message>
            <source>Every %1 months on day %2</source>
            <translation>Every %1 months on day %2</translation>
        </message>
        <message>
            <source>Every week on %1</source>
            <translation>Every week on %1</translation>
        </message>
        <message>
            <source>Every %1 weeks on %2</source>
            <translation>Every %1 weeks on %2</translation>
        </message>
        <message>
            <source>d MMMM</source>
            <translation>d MMMM</translation>
        </message>
        <message>
            <source>Every year on %1</source>
            <translation>Every year on %1</translation>
        </message>
        <message>
            <source>Every %1 years on %2</source>
            <translation>Every %1 years on %2</translation>
        </message>
    </context>
    <context>
        <name>ScheduleBook</name>
        <message>
            <source>The schedules file cannot be read: %1 It is left as it is, and no entry is booked from it until it is mended.</source>
            <translation>The schedules file cannot be read: %1 It is left as it is, and no entry is booked from it until it is mended.</translation>
        </message>
        <message>
            <source>There is a schedule of that name already.</source>
            <translation>There is a schedule of that name already.</translation>
        </message>
        <message>
            <source>The schedule is gone.</source>
            <translation>The schedule is gone.</translation>
        </message>
        <message numerus="yes">
            <source>Booking of %n Scheduled Entries</source>
            <translation>
                <numerusform>Booking of %n Scheduled Entry</numerusform>
                <numerusform>Booking of %n Scheduled Entries</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>ScheduleDialog</name>
        <message>
            <source>New Schedule</source>
            <translation>New Schedule</translation>
        </message>
        <message>
            <source>Schedule</source>
            <translation>Schedule</translation>
        </message>
        <message>
            <source>&amp;Details:</source>
            <translation>&amp;Details:</translation>
        </message>
        <message>
            <source>&amp;Category:</source>
            <translation>&amp;Category:</translation>
        </message>
        <message>
            <source>&amp;Amount:</source>
            <translation>&amp;Amount:</translation>
        </message>
        <message>
            <source>&amp;Payway:</source>
            <translation>&amp;Payway:</translation>
        </message>
        <message>
            <source>months</source>
            <translation>months</translation>
        </message>
        <message>
            <source>weeks</source>
            <translation>weeks</translation>
        </message>
        <message>
            <source>years</source>
            <translation>years</translation>
        </message>
        <message>
            <source>&amp;Every:</source>
            <translation>&amp;Every:</translation>
        </message>
        <message>
            <source>&amp;On:</source>
            <translation>&amp;On:</translation>
        </message>
        <message>
            <source>&amp;Starts:</source>
            <translation>&amp;Starts:</translation>
        </message>
        <message>
            <source>Never</source>
            <translation>Never</translation>
        </message>
        <message>
            <source>On</source>
            <translation>On</translation>
        </message>
        <message>
            <source>After</source>
            <translation>After</translation>
        </message>
        <message>
            <source> times</source>
            <translation> times</translation>
        </message>
        <message>
            <source>E&amp;nds:</source>
            <translation>E&amp;nds:</translation>
        </message>
        <message>
            <source>Book &amp;automatically</source>
            <translation>Book &amp;automatically</translation>
        </message>
        <message>
            <source>Ask &amp;first</source>
            <translation>Ask &amp;first</translation>
        </message>
        <message>
            <source>Booking:</source>
            <translation>Booking:</translation>
        </message>
        <message>
            <source>Give the amount to book.</source>
            <translation>Give the amount to book.</translation>
        </message>
        <message>
            <source>%1; next on %2, at %3.</source>
            <translation>%1; next on %2, at %3.</translation>
        </message>
        <message>
            <source>%1; every date of it has been booked.</source>
            <translation>%1; every date of it has been booked.</translation>
        </message>
    </context>
    <context>
        <name>ScheduleFile</name>
        <message>
            <source>It holds no list of schedules.</source>
            <translation>It holds no list of schedules.</translation>
        </message>
        <message>
            <source>It was written by a newer Penwick.</source>
            <translation>It was written by a newer Penwick.</translation>
        </message>
        <message>
            <source>Schedule %1 has a wrong &quot;%2&quot;.</source>
            <translation>Schedule %1 has a wrong &quot;%2&quot;.</translation>
        </message>
    </context>
    <context>
        <name>ScheduleListModel</name>
        <message>
            <source>Finished</source>
            <translation>Finished</translation>
        </message>
        <message>
            <source>Ask first</source>
            <translation>Ask first</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>Automatic</translation>
        </message>
        <message>
            <source>Next</source>
            <translation>Next</translation>
        </message>
        <message>
            <source>Details</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>Category</source>
            <translation>Category</translation>
        </message>
        <message>
            <source>Amount</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Payway</source>
            <translation>Payway</translation>
        </message>
        <message>
            <source>Repeats</source>
            <translation>Repeats</translation>
        </message>
        <message>
            <source>Booking</source>
            <translation>Booking</translation>
        </message>
    </context>
    <context>
        <name>ScheduleWinController</name>
        <message>
            <source>Schedules</source>
            <translation>Schedules</translation>
        </message>
        <message>
            <source>&amp;Add…</source>
            <translation>&amp;Add…</translation>
        </message>
        <message>
            <source>&amp;Edit…</source>
            <translation>&amp;Edit…</translation>
        </message>
        <message>
            <source>&amp;Remove…</source>
            <translation>&amp;Remove…</translation>
        </message>
        <message>
            <source>The schedule could not be saved.</source>
            <translation>The schedule could not be saved.</translation>
        </message>
        <message>
            <source>Remove Schedule</source>
            <translation>Remove Schedule</translation>
        </message>
        <message>
            <source>Remove the schedule &quot;%1&quot;? Entries booked from it stay.</source>
            <translation>Remove the schedule &quot;%1&quot;? Entries booked from it stay.</translation>
        </message>
        <message>
            <source>&amp;Remove</source>
            <translation>&amp;Remove</translation>
        </message>
        <message>
            <source>The schedule could not be removed.</source>
            <translation>The schedule could not be removed.</translation>
        </message>
    </context>
    <context>
        <name>ImportOffer</name>
        <message>
            <source>Import</source>
            <translation>Import</translation>
        </message>
        <message>
            <source>Statements and account books (*.csv *.txt *.qif *.ofx *.qfx *.xhb)</source>
            <translation>Statements and account books (*.csv *.txt *.qif *.ofx *.qfx *.xhb)</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>All files (*)</translation>
        </message>
    </context>
    <context>
        <name>PropertyList</name>
        <message>
            <source>The file is empty.</source>
            <translation>The file is empty.</translation>
        </message>
        <message>
            <source>The file is too large.</source>
            <translation>The file is too large.</translation>
        </message>
        <message>
            <source>It is not a property list.</source>
            <translation>It is not a property list.</translation>
        </message>
        <message>
            <source>It holds a kind of value Penwick does not keep.</source>
            <translation>It holds a kind of value Penwick does not keep.</translation>
        </message>
    </context>
</TS>
