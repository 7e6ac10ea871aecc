#pragma once

#include <map>

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

namespace quindle {

/// A language of a few texts, in force for as long as the object lives. Their context does not matter.
class TestTranslation : public QTranslator
{
public:
    explicit TestTranslation(std::map<QString, QString> texts)
        : m_texts(std::move(texts))
    {
        QCoreApplication::installTranslator(this);
    }

    TestTranslation(const QString& text, const QString& translation)
        : TestTranslation(std::map<QString, QString>{{text, translation}})
    {
    }

    ~TestTranslation() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char* /*context*/, const char* text, const char* /*about*/,
                      int /*count*/) const override
    {
        const auto found = m_texts.find(QString::fromUtf8(text));
        return found == m_texts.end() ? QString() : found->second;
    }

private:
    std::map<QString, QString> m_texts;
};

} // namespace quindle
