#include "platform/linux/display/XSettings.h"

#include <optional>

#include <QByteArrayView>
#include <QtEndian>

#include "platform/linux/display/X11Connection.h"
#include "platform/linux/display/X11Display.h"

namespace quindle {

namespace {

/// What a setting is, as the property says.
enum SettingType { Number = 0, Text = 1, Colour = 2 };

/// Reads the property from its beginning to its end. All lengths are padded to four bytes.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes)
        : m_rest(bytes)
    {
        // The first byte gives the byte order of all numbers.
        m_isBigEndian = !bytes.isEmpty() && bytes.front() == 1;
    }

    bool isBroken() const { return m_isBroken; }

    QByteArrayView take(std::uint32_t length)
    {
        const qsizetype padded = (qsizetype{length} + 3) / 4 * 4;
        if (padded > m_rest.size())
            m_isBroken = true;
        if (m_isBroken)
            return {};
        const QByteArrayView taken = m_rest.first(length);
        m_rest = m_rest.sliced(padded);
        return taken;
    }

    std::uint32_t number()
    {
        const QByteArrayView bytes = take(4);
        if (m_isBroken)
            return 0;
        return m_isBigEndian ? qFromBigEndian<std::uint32_t>(bytes.data())
                             : qFromLittleEndian<std::uint32_t>(bytes.data());
    }

    std::uint16_t shortNumber(QByteArrayView bytes) const
    {
        return m_isBigEndian ? qFromBigEndian<std::uint16_t>(bytes.data())
                             : qFromLittleEndian<std::uint16_t>(bytes.data());
    }

private:
    QByteArrayView m_rest;
    bool m_isBigEndian = false;
    bool m_isBroken = false;
};

struct Setting
{
    QByteArrayView name;
    QByteArrayView text; ///< of a text
};

std::optional<Setting> takeSetting(Reader& reader)
{
    const QByteArrayView head = reader.take(4);
    if (head.isEmpty())
        return std::nullopt;
    Setting setting;
    setting.name = reader.take(reader.shortNumber(head.sliced(2)));
    reader.number(); // when it was changed
    switch (head.front()) {
    case Number:
        reader.number();
        break;
    case Text:
        setting.text = reader.take(reader.number());
        break;
    case Colour:
        reader.take(8);
        break;
    default:
        return std::nullopt;
    }
    return reader.isBroken() ? std::nullopt : std::optional(setting);
}

QByteArray fontNameOf(const X11Connection& connection)
{
    const QByteArray property =
        connection.property(connection.selectionOwner("_XSETTINGS_S"), "_XSETTINGS_SETTINGS", 8);
    return xsettingsText(property, "Gtk/FontName");
}

} // namespace

QByteArray xsettingsText(const QByteArray& property, const QByteArray& name)
{
    Reader reader(property);
    reader.take(4);  // the order of bytes
    reader.number(); // when anything was changed
    for (std::uint32_t left = reader.number(); left > 0; --left) {
        const auto setting = takeSetting(reader);
        if (!setting)
            return {};
        if (setting->name == name)
            return setting->text.toByteArray();
    }
    return {};
}

QByteArray xsettingsFontName(X11Display& display)
{
    return display.ask(fontNameOf).value_or(QByteArray());
}

} // namespace quindle
