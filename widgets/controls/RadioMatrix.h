#pragma once

#include <QButtonGroup>
#include <QStringList>
#include <QWidget>

namespace quindle {

/// Radio buttons in a row or in a column, one per cell; a cell's tag is its place, counted from 0.
class RadioMatrix : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList cells READ cells WRITE setCells)
    Q_PROPERTY(bool isRow READ isRow WRITE setIsRow)
    Q_PROPERTY(qint64 selectedTag READ selectedTag WRITE setSelectedTag USER true)

public:
    explicit RadioMatrix(QWidget* parent = nullptr);

    /// The labels, with their mnemonics.
    QStringList cells() const;
    void setCells(const QStringList& labels);

    /// Whether the cells stand side by side, as at first, or in a column.
    bool isRow() const;
    void setIsRow(bool isRow);

    /// The tag of the selected cell; -1 when none is. A tag that no cell has selects none.
    qint64 selectedTag() const { return m_group.checkedId(); }
    void setSelectedTag(qint64 tag);

Q_SIGNALS:
    /// The user has chosen a cell in any way, even the one that was already selected.
    void clicked();

private:
    QButtonGroup m_group;
};

} // namespace quindle
