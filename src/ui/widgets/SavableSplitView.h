#pragma once

#include <QSplitter>
#include <QString>

// A splitter that remembers the sizes of its panes, and its orientation, in
// the settings under a name its owner gives it. It keeps one layout for panes
// side by side ("vertical", as the dividers stand) and one for stacked panes
// ("horizontal"), so switching orientation and back returns each to its own.
//
// A layout is the size of each pane along the split axis, whole pixels
// separated by one blank: "130 245". A layout that names another number of
// panes, or a pane (but the last) larger than the splitter, is ignored; the
// last pane always takes what is left.
class SavableSplitView : public QSplitter
{
    Q_OBJECT

public:
    explicit SavableSplitView(Qt::Orientation orientation, QWidget *parent = nullptr);
    // Saves, as quitting does.
    ~SavableSplitView() override;

    QString autosaveName() const { return m_autosaveName; }
    // Restores what was saved under the name, unless it is empty. Set it once
    // the panes have been added.
    void setAutosaveName(const QString &name);

    // Panes side by side.
    bool isVertical() const { return orientation() == Qt::Horizontal; }
    // Remembers the layout of the orientation being left, then switches.
    void setVertical(bool vertical);

    QString splitViewPosition() const;
    // Applied at once when the splitter is shown, else when it first is.
    void setSplitViewPosition(const QString &layout);

    // Writes the layouts and the orientation under the name, now.
    void saveStatus();

protected:
    void showEvent(QShowEvent *event) override;

private:
    static QString layoutOf(const QList<int> &sizes);
    void applyLayout(const QString &layout);
    void saveCurrentPosition();
    void readStatusFromDefaults();

    QString m_autosaveName;
    QString m_verticalPosition;
    QString m_horizontalPosition;
    // A layout set before the splitter had its size.
    QString m_pendingLayout;
    bool m_wasShown = false;
};
