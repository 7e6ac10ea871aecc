#pragma once

#include <QWidget>

class QLineEdit;

namespace quindle {

class PlainLabel;
class QuietLabel;
class StatusBarTitle;

/// The title that a template gives at the moment: the text in a field, stored or not, or one that is bound.
class TitlePreview : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString titleTemplate READ titleTemplate WRITE setTitleTemplate)

public:
    explicit TitlePreview(QWidget* parent = nullptr);

    /// Shows what the field's text gives from now on, at every change of it. Both must outlive the preview.
    void follow(const QLineEdit& field, const StatusBarTitle& title);

    /// Shows what `titleTemplate` gives from now on.
    void follow(const StatusBarTitle& title);

    const QString& titleTemplate() const { return m_titleTemplate; }
    void setTitleTemplate(const QString& titleTemplate);

    /// Shows the present values. Nothing to show (no battery, an empty text) is said in words.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void fitToFont();

    QString m_titleTemplate;
    const StatusBarTitle* m_title = nullptr;
    QuietLabel& m_caption;
    PlainLabel& m_shown;
};

} // namespace quindle
