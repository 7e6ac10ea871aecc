#pragma once

#include <QWidget>

class QButtonGroup;

namespace quindle {

/// How wide a segment is: its title's width in the control's font with one line's height on each side, and
/// no narrower than four lines' height.
int segmentWidth(int titleWidth, int lineHeight);

/// Exclusive choices drawn as one connected control. To the keyboard and to assistive programs it is a group
/// of radio buttons: Tab enters it at the chosen segment, the arrow keys choose.
class SegmentedControl : public QWidget
{
    Q_OBJECT

public:
    /// One segment for each title, with its index as tag; none is chosen. A "&" marks the mnemonic.
    explicit SegmentedControl(const QStringList& titles, QWidget* parent = nullptr);

    /// -1 when none is chosen.
    int selectedTag() const;

    /// Chooses without acting.
    void selectSegmentWithTag(int tag);

    int segmentCount() const;

    /// Null for a tag that no segment has.
    QWidget* segment(int tag) const;

Q_SIGNALS:
    /// The user chose a segment, which may have been chosen already.
    void action();

private:
    QButtonGroup* m_segments;
};

} // namespace quindle
