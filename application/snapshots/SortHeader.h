#pragma once

#include <QHeaderView>

namespace quindle {

/// The captions of a table, by which it is sorted: by a click, or by the keyboard while it has the focus
/// (arrows choose a caption, Space and Return sort by it, and again in the other direction).
class SortHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit SortHeader(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;

private:
    void choose(int section);
    void sortByChosen();
    void describe();

    int m_chosen = 0;
};

} // namespace quindle
