#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// Extracts the product-information service's answer from the parser's events. It only knows which element
/// began last, not when one ends.
class XMLData
{
public:
    /// Fatal: an answer always belongs to a serial number's part.
    [[noreturn]] XMLData();

    /// `serialPart` is the configuration code that was asked for; nothing here depends on it.
    explicit XMLData(const QString& serialPart);

    void didStartElement(const QString& elementName);

    /// Each delivery replaces what an earlier one gave: of a text that arrives in pieces only the last one
    /// stays.
    void foundCharacters(const QString& characters);

    std::optional<QString> locale() const { return m_locale; }         ///< no event sets it
    std::optional<QString> configCode() const { return m_configCode; } ///< the marketing name
    std::optional<QString> name() const { return m_name; }

private:
    QString m_element;
    std::optional<QString> m_locale;
    std::optional<QString> m_configCode;
    std::optional<QString> m_name;
};

} // namespace quindle
