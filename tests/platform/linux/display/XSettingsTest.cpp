#include "platform/linux/display/XSettings.h"

#include <chrono>

#include <QtEndian>
#include <gtest/gtest.h>

#include "platform/linux/display/X11Display.h"

namespace quindle {
namespace {

/// Writes what a settings manager publishes.
class Settings
{
public:
    explicit Settings(bool isBigEndian)
        : m_isBigEndian(isBigEndian)
    {
    }

    void add(int type, const QByteArray& name, const QByteArray& value)
    {
        m_settings += static_cast<char>(type);
        m_settings += '\0';
        m_settings +=
            number(static_cast<std::uint16_t>(name.size())) + padded(name) + number(std::uint32_t{7}) + value;
        ++m_count;
    }

    void addNumber(const QByteArray& name) { add(0, name, number(std::uint32_t{42})); }

    void addColour(const QByteArray& name) { add(2, name, QByteArray(8, '\x11')); }

    void addText(const QByteArray& name, const QByteArray& text)
    {
        add(1, name, number(static_cast<std::uint32_t>(text.size())) + padded(text));
    }

    QByteArray property() const
    {
        return QByteArray(1, m_isBigEndian ? '\1' : '\0') + QByteArray(3, '\0') + number(std::uint32_t{3}) +
               number(m_count) + m_settings;
    }

private:
    template <typename Number>
    QByteArray number(Number value) const
    {
        QByteArray bytes(sizeof value, '\0');
        if (m_isBigEndian)
            qToBigEndian(value, bytes.data());
        else
            qToLittleEndian(value, bytes.data());
        return bytes;
    }

    static QByteArray padded(const QByteArray& text)
    {
        return text + QByteArray((4 - text.size() % 4) % 4, '\0');
    }

    bool m_isBigEndian;
    std::uint32_t m_count = 0;
    QByteArray m_settings;
};

QByteArray wholeProperty(bool isBigEndian)
{
    Settings settings(isBigEndian);
    settings.addNumber("Xft/Antialias");
    settings.addColour("Net/Colour");
    settings.addText("Net/ThemeName", "Greybird");
    settings.addText("Gtk/FontName", "Noto Sans 10");
    settings.addText("Gtk/Other", "");
    return settings.property();
}

TEST(XSettings, ATextIsFoundAmongTheOthers)
{
    for (const bool isBigEndian : {false, true}) {
        const QByteArray property = wholeProperty(isBigEndian);
        EXPECT_EQ(xsettingsText(property, "Gtk/FontName"), "Noto Sans 10");
        EXPECT_EQ(xsettingsText(property, "Net/ThemeName"), "Greybird");
        for (const char* name : {"Gtk/Other", "Xft/Antialias", "Net/Colour", "Gtk/Font", "Gtk/FontName2", ""})
            EXPECT_EQ(xsettingsText(property, name), QByteArray()) << name;
    }
}

TEST(XSettings, WhatIsCutOffHasOnlyWhatIsBeforeTheCut)
{
    const QByteArray whole = wholeProperty(false);
    const qsizetype end = whole.indexOf("Noto Sans 10") + 12;
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(xsettingsText(whole.left(length), "Gtk/FontName"),
                  length < end ? QByteArray() : QByteArray("Noto Sans 10"))
            << length;
}

TEST(XSettings, AnyBytesAreReadToTheirEnd)
{
    const QByteArray whole = wholeProperty(true);
    for (qsizetype place = 0; place < whole.size(); ++place) {
        for (const char wrong : {'\0', '\x01', '\x7f', '\xff'}) {
            QByteArray broken = whole;
            broken[place] = wrong;
            EXPECT_LE(xsettingsText(broken, "Gtk/FontName").size(), whole.size());
        }
    }
    Settings unknown(false);
    unknown.add(9, "Gtk/FontName", "abcd");
    EXPECT_EQ(xsettingsText(unknown.property(), "Gtk/FontName"), QByteArray());
}

TEST(XSettings, WithoutADisplayNobodySaysTheFont)
{
    X11Display display(QByteArray(), std::chrono::milliseconds(100));
    EXPECT_EQ(xsettingsFontName(display), QByteArray());
}

} // namespace
} // namespace quindle
