#pragma once

#include <QWidget>

#include "platform/RunLoop.h"

namespace quindle {

class BoundLineEdit;
class PlainLabel;
class QuietLabel;
class StatusBarTitle;

/// The title that a template gives at the moment: the text in a field, or one that is bound. The caption
/// marks a text that is not stored. While it is seen it watches the values.
class TitlePreview : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString titleTemplate READ titleTemplate WRITE setTitleTemplate)

public:
    explicit TitlePreview(QWidget* parent = nullptr);

    /// Shows what the field's text gives from now on, at every change of it. Both must outlive the preview.
    void follow(const BoundLineEdit& field, const StatusBarTitle& title);

    /// Shows what `titleTemplate` gives from now on.
    void follow(const StatusBarTitle& title);

    const QString& titleTemplate() const { return m_titleTemplate; }
    void setTitleTemplate(const QString& titleTemplate);

    /// Shows the present values. Where there is nothing to show (no battery, an empty text) it says so in
    /// words.
    void refresh();

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void showPending(bool isPending);
    void fitToFont();
    void watch(bool isSeen);

    QString m_titleTemplate;
    bool m_isPending = false;
    const StatusBarTitle* m_title = nullptr;
    Punctuality m_watched;
    QuietLabel& m_caption;
    PlainLabel& m_shown;
};

} // namespace quindle
