#pragma once

#include "graph/ChartData.h"

#include <QColor>
#include <QList>
#include <QPainterPath>
#include <QStringList>
#include <QTransform>
#include <QWidget>

class ChartDataSource;
class QPainter;

// The common base of the charts of the graph window: the month on show, the
// chart data, colours and names of the categories, which ones are checked and
// which one is highlighted, and the hit-test paths of what was last drawn.
//
// Charts draw in their own coordinates, whose y axis points up unless the
// chart is flipped; chartTransform() is the one place where they become the
// widget's. Hit-test paths are kept in chart coordinates, in a fixed index
// order: first one per category (an empty path when it is not drawn), then
// whatever the chart adds. Where paths overlap, the lower index wins.
class PWKGraphView : public QWidget
{
    Q_OBJECT

public:
    explicit PWKGraphView(QWidget *parent = nullptr);
    ~PWKGraphView() override;

    int targetYear() const { return m_targetYear; }
    int targetMonth() const { return m_targetMonth; }
    // Shows another month: fetches its data from the source and re-fits.
    void setTargetYear(int year, int month);

    // Not owned; the chart fetches its months through it.
    void setDataSource(ChartDataSource *source);
    // Fetches the months of dataArrayForDrawing(), re-fits the size, redraws.
    void updateDataList();
    // The months this chart shows, data still empty: the target month alone.
    virtual ChartEntries dataArrayForDrawing() const;

    const ChartData &chartData() const { return m_chartData; }
    void setCurrentDataArray(const ChartEntries &entries);
    void setColorList(const QList<QColor> &colors);
    void setCategoryNames(const QStringList &names);
    void setSelectedItems(const QList<bool> &selected);
    // The highlighted category, -1 for none.
    int selectedNumber() const { return m_selectedNumber; }
    void setSelectedNumber(int category);

    // The size the chart wants: by default the visible area around it.
    virtual QSize preferredChartSize() const;
    void fitToPreferredSize();

    // The index of the first hit-test path that holds the point (widget
    // coordinates), -1 for none. Valid for the last draw.
    int categoryForMousePoint(const QPointF &point) const;
    // The tool tip of hit-test index `index` with the pointer at `point`
    // (chart coordinates); empty for none. By default the category of the
    // first month shown, with its amount and share.
    virtual QString tooltipForItem(int index, const QPointF &point) const;

    // Black or white, whichever reads better on the colour.
    static QColor labelColorOn(const QColor &background);
    static QFont labelFont();
    // A month as the charts name it, year and month.
    static QString monthLabel(int year, int month);
    // The format of the application's string table ("Localizable") under
    // `key`, or the English one while the table has no text for it: a format
    // key drawn as it stands would fill the chart with its own name. Callers
    // mark the key with QT_TRANSLATE_NOOP so that it is collected.
    static QString localizedFormat(const char *key, const QString &english);

signals:
    // A click on a category: highlight it.
    void itemSelected(int category);
    // A double click on a category of the month on show.
    void itemDoubleClicked(int category);
    // A double click that asks for the entries of a category (-1: all) in a
    // month other than the one whose row the table can select.
    void categoryListRequested(int category, int year, int month);

protected:
    virtual bool isFlipped() const { return false; }
    // Maps chart coordinates to the widget's.
    QTransform chartTransform() const;

    // Draws the chart with the painter already in chart coordinates; the
    // hit-test paths are empty when it starts.
    virtual void drawChart(QPainter &painter) = 0;
    // A click (or double click) on hit-test index `index`.
    virtual void handleClick(int index, bool doubleClick);
    // Where the tool tip of `index`, shown with the pointer at `point`, stays
    // up (chart coordinates): by default the whole of its path.
    virtual QRectF tooltipArea(int index, const QPointF &point) const;
    // "Name: amount (share %)" of a category in one month's entry, the share
    // taken of what the chart shows of that month; with the month named
    // when the chart shows several.
    QString amountTip(int category, const ChartEntry &entry, bool namingMonth) const;

    void addHitPath(const QPainterPath &path);
    int hitPathCount() const { return int(m_graphBeziers.size()); }
    int categoryCount() const { return int(m_colorList.size()); }
    QColor colorOf(int category) const;
    QString categoryName(int category) const;
    // Text drawn upright into a rectangle given in chart coordinates.
    void drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text,
                  const QColor &color) const;
    // The chart's colours, from the palette in force: its ground, its ink,
    // and the ink faded towards the ground by `weight` (0 ground, 1 ink),
    // for axes, grid lines and notes.
    QColor groundColor() const;
    QColor inkColor() const;
    QColor fadedInk(double weight) const;

    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void clickAt(const QPointF &point, bool doubleClick);

    int m_targetYear;
    int m_targetMonth;
    ChartDataSource *m_source = nullptr;
    ChartData m_chartData;
    QList<QColor> m_colorList;
    QStringList m_categoryNames;
    int m_selectedNumber = -1;
    QList<QPainterPath> m_graphBeziers;
};
