#include "widgets/controls/RadioMatrix.h"

#include <QBoxLayout>

#include "widgets/controls/RadioCell.h"

namespace quindle {

RadioMatrix::RadioMatrix(QWidget* parent)
    : QWidget(parent)
{
    auto* line = new QBoxLayout(QBoxLayout::LeftToRight, this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addStretch(1);
    connect(&m_group, &QButtonGroup::idClicked, this, &RadioMatrix::clicked);
}

QStringList RadioMatrix::cells() const
{
    QStringList labels;
    for (const QAbstractButton* cell : m_group.buttons())
        labels.append(cell->text());
    return labels;
}

void RadioMatrix::setCells(const QStringList& labels)
{
    qDeleteAll(m_group.buttons());
    auto* line = static_cast<QBoxLayout*>(layout());
    setFocusPolicy(Qt::TabFocus); // otherwise it has no place in the tab order
    QWidget* previous = this;
    for (int tag = 0; tag < labels.size(); ++tag) {
        auto* cell = new RadioCell(labels[tag], this);
        m_group.addButton(cell, tag);
        line->insertWidget(tag, cell);
        setTabOrder(previous, cell); // labels may be set after all other controls exist
        previous = cell;
    }
    // Only cells take the keyboard.
    setFocusPolicy(Qt::NoFocus);
}

bool RadioMatrix::isRow() const
{
    return static_cast<QBoxLayout*>(layout())->direction() == QBoxLayout::LeftToRight;
}

void RadioMatrix::setIsRow(bool isRow)
{
    static_cast<QBoxLayout*>(layout())->setDirection(isRow ? QBoxLayout::LeftToRight
                                                           : QBoxLayout::TopToBottom);
}

void RadioMatrix::setSelectedTag(qint64 tag)
{
    m_group.setExclusive(false); // an exclusive group refuses to have no cell selected
    for (QAbstractButton* cell : m_group.buttons())
        cell->setChecked(m_group.id(cell) == tag);
    m_group.setExclusive(true);
}

} // namespace quindle

#include "moc_RadioMatrix.cpp"
