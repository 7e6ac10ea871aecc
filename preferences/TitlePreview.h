#pragma once

#include <QWidget>

class QLineEdit;

namespace quindle {

class ElidedLabel;
class QuietLabel;
class StatusBarTitle;

/// The line under a template's field: the title that the text in the field gives at the moment, stored or
/// not.
class TitlePreview : public QWidget
{
    Q_OBJECT

public:
    explicit TitlePreview(QWidget* parent = nullptr);

    /// Shows what the field's text gives from now on, at every change of it. Both must outlive the preview.
    void follow(const QLineEdit& field, const StatusBarTitle& title);

    /// Shows the present values. Nothing to show (no battery, an empty text) is said in words.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitToFont();

    const QLineEdit* m_field = nullptr;
    const StatusBarTitle* m_title = nullptr;
    QuietLabel& m_caption;
    ElidedLabel& m_shown;
};

} // namespace quindle
