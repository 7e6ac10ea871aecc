#pragma once

#include <QWidget>

namespace quindle {

/// The view of a pane whose interface file lays it out as a grid of two columns: captions, and controls below
/// one another. All measures come from the desktop's font, so that the pane grows with it.
class PaneView : public QWidget
{
    Q_OBJECT

public:
    explicit PaneView(QWidget* parent = nullptr);

    /// Whether it is only as wide as its controls need, for places narrower than a preferences window. To be
    /// called before `fitToFont`.
    void setCompact(bool isCompact) { m_isCompact = isCompact; }

    /// What the longest caption needs.
    int captionWidth() const;

    /// At least as much as that for the captions, so that those of panes below one another form one column.
    void setCaptionWidth(int width);

    /// To be called once after the interface file has been loaded; later changes of the font are followed.
    void fitToFont();

protected:
    void changeEvent(QEvent* event) override;

private:
    void alignCaptions();

    int m_captionWidth = 0;
    bool m_isCompact = false;
};

} // namespace quindle
