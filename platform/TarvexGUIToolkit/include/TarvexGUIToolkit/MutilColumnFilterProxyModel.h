#pragma once
// Sorting proxy with one filter per column. A row is shown when the text of each filtered
// column (its data in filterRole(), as a string) matches that column's filter; columns
// without a filter don't take part, and QSortFilterProxyModel's own filter applies on top.
//
// Sorting is QSortFilterProxyModel's, on sortRole(): numbers stored as numbers compare as
// numbers, texts compare as texts (case-sensitive unless setSortCaseSensitivity says
// otherwise); an empty text comes before other texts, a cell without data after all
// values (in ascending order).

#include <QList>
#include <QMap>
#include <QRegularExpression>
#include <QSortFilterProxyModel>

namespace TarvexGUIToolkit {

class CMutilColumnFilterProxyModel : public QSortFilterProxyModel {
    Q_OBJECT
public:
    explicit CMutilColumnFilterProxyModel(QObject* parent = nullptr);
    ~CMutilColumnFilterProxyModel() override;

    // Rows whose `column` contains `text`. An empty text removes the column's filter.
    void SetColumnFilter(int column, const QString& text, Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive);
    // Rows whose `column` matches `expression` anywhere (anchor it for whole-text matches).
    // An empty or invalid expression removes the column's filter.
    void SetColumnFilterRegularExpression(int column, const QRegularExpression& expression);
    void RemoveColumnFilter(int column);
    void ClearColumnFilters();

    bool HasColumnFilter(int column) const;
    // The filter of `column`; an empty expression when it has none.
    QRegularExpression GetColumnFilter(int column) const;
    QList<int> GetFilteredColumns() const;

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    QMap<int, QRegularExpression> m_columnFilters;
};

} // namespace TarvexGUIToolkit
