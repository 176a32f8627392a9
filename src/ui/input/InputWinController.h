#pragma once

#include "entry/DescriptionMemory.h"

#include <QDate>
#include <QList>
#include <QWidget>

class DescriptionListModel;
class InputRow;
class InputRowList;
class KController;
class KeyButton;
class LastPopUpButton;
class QComboBox;
class QLineEdit;
class InputDateBar;

// The window in which entries are booked: a date on top, rows of input below
// (month and day, category, description, amount, payway), the running total
// of the spending typed so far, and buttons that book every filled row at
// once through the application controller. Amount fields take arithmetic;
// description boxes offer remembered descriptions that fill in a row's
// category and amount. Tab past the payway of the last row adds a row.
//
// It opens no other window: after booking it asks for the list window with
// listWindowRequested() or for the end of the program with quitRequested(),
// and the application decides.
class InputWinController : public QWidget
{
    Q_OBJECT

public:
    explicit InputWinController(KController *controller, QWidget *parent = nullptr);
    ~InputWinController() override;

    // Sets the date of the window and of every row, and puts the focus on the
    // day. Out-of-range values roll over as a calendar does (month 13 is
    // January of the next year).
    void setYear(int year, int month, int date);
    // False while any row holds something that booking would keep or that
    // was typed: quitting then would lose it.
    bool canTerminateApp() const;
    // Asks whether to book the typed rows before quitting, to quit without
    // booking, or to go on. Shown on the window, which comes to the front.
    void confirmInputDataBeforeTerminate();

    int numberOfRows() const;
    // The control of a row by its tag, 10 * row + role; null when there is
    // none.
    QWidget *getControlWithTag(int tag) const;
    QDate inputDate() const;

signals:
    // Booking chose to show the list, or the input was cancelled.
    void listWindowRequested();
    // The user chose to quit once the input was booked or discarded.
    void quitRequested();

public slots:
    // Books every filled row and closes the window; rows with data but no
    // category first raise a sheet.
    void inputData();
    // The same, then asks for the list window.
    void inputDataAndShowList();
    // The same, then asks to quit.
    void inputDataAndQuit();
    // Closes without booking and asks for the list window.
    void cancelInput();
    // Moves the window's date a day on (or back); rows still empty follow,
    // rows holding data keep their date.
    void incrementDate();
    void decrementDate();
    // Takes the date typed into the top fields.
    void checkDate();
    void makeNewInputViewFromAction();
    // Evaluates every amount, writes the values back and shows the total of
    // the rows on a spending category.
    void calcurateSum();
    // Refills the category and payway pop-ups from the current lists and
    // applies the Return-key setting.
    void setPopupButtonTitle();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    InputRow *addRow();
    void makeNewInputView(LastPopUpButton *sender);
    void removeInputViews();
    void clearDataOfView(InputRow *row);
    void fillPopUps(InputRow *row);
    void updateColumnWidths();
    void changeDefaultButton();
    void setInputDate(const QDate &date);
    void moveDate(int days);
    void setRowDate(InputRow *row, const QDate &date);
    QDate rowDate(const InputRow *row) const;
    bool isRowEmpty(const InputRow *row) const;
    double spendingTotal() const;
    void bookInputData();
    void selectDescription(InputRow *row, int index);
    void descriptionEditingEnded(InputRow *row);
    void fillFromDescription(InputRow *row, const DescriptionMemory::Record &record);
    void reloadDescriptions();
    void submit(int afterInputWork);
    void showCategorySheet(InputRow *faultyRow);
    void showAmountSheet(InputRow *faultyRow);
    // Asks before booking into a year far from today (a typo of "25"), then
    // books.
    void confirmYearsAndBook();
    void saveWindowGeometry();

    template <typename T>
    T *control(const InputRow *row, int role) const;

    KController *m_controller;
    DescriptionMemory m_descriptions;
    DescriptionListModel *m_descriptionModel;

    InputDateBar *m_dateBar;
    InputRowList *m_rowList;
    KeyButton *m_addRowButton;
    KeyButton *m_cancelButton;
    KeyButton *m_inputButton;
    KeyButton *m_OKButton;

    // What the submission under way does after booking: 0 only close, 1 also
    // show the list, 2 also quit.
    int m_afterInputWork = 0;
};
