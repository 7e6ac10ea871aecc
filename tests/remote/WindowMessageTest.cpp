#include "remote/WindowMessage.h"

#include <gtest/gtest.h>

#include "platform/MessageLink.h"

using namespace quindle;

namespace {

using Kind = WindowMessage::Kind;

const WindowMessage messages[]{
    {.kind = Kind::OpenView},
    {.kind = Kind::ToggleView, .text = "token", .pointer = QPoint(640, 12), .number = 3, .data = "memory"},
    {.kind = Kind::ShowPreferences, .pointer = QPoint(-1920, -1)},
    {.kind = Kind::ShowMenuBarText, .data = QByteArray("\0\1\xff", 3)},
    {.kind = Kind::Refreshed, .number = 0xffffffff},
    {.kind = Kind::PanelShows, .text = "87", .number = 2, .data = "PNG"},
    {.kind = Kind::Announced, .text = "SettingsChangedNotification"},
    {.kind = Kind::Heard, .number = 1},
    {.kind = Kind::Idle, .number = 0x01020304},
    {.kind = Kind::Watched, .number = 1},
    {.kind = Kind::RefreshTitle},
    {.kind = Kind::ReloadBattery},
    {.kind = Kind::Clicked, .number = 2},
    {.kind = Kind::Quit},
    {.kind = Kind::Stored, .text = "standard", .data = "<plist/>"},
};

QByteArray numbered(quint8 kind)
{
    QByteArray bytes = encoded({.kind = Kind::Quit});
    bytes[0] = static_cast<char>(kind);
    return bytes;
}

TEST(WindowMessage, ComesBackAsItWas)
{
    for (const WindowMessage& message : messages)
        EXPECT_EQ(decoded(encoded(message)), message) << static_cast<int>(message.kind);
}

TEST(WindowMessage, FourAreRequests)
{
    int requests = 0;
    for (const WindowMessage& message : messages)
        requests += isRequest(message.kind) ? 1 : 0;
    EXPECT_EQ(requests, 4);
    EXPECT_FALSE(isRequest(Kind::Refreshed));
}

TEST(WindowMessage, WhatIsCutOffIsNone)
{
    const QByteArray whole = encoded({.kind = Kind::OpenView, .text = "token"});
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(decoded(whole.left(size))) << size;
}

TEST(WindowMessage, OnlyKnownKindsAreAny)
{
    int known = 0;
    for (int kind = 0; kind < 256; ++kind)
        known += decoded(numbered(static_cast<quint8>(kind))) ? 1 : 0;
    EXPECT_EQ(known, static_cast<int>(std::size(messages)));
}

TEST(WindowMessage, ATextThatClaimsTooMuchIsNone)
{
    QByteArray bytes = encoded({.kind = Kind::OpenView, .text = QByteArray(2000, 'x')});
    ASSERT_TRUE(decoded(bytes));
    for (const char size : {'\x05', '\x7f', '\xff'}) { // more than there is, and more than there may be
        bytes[17] = size;
        EXPECT_FALSE(decoded(bytes));
    }
}

TEST(WindowMessage, IsNeverTooLongForALink)
{
    const WindowMessage longest{
        .kind = Kind::Stored, .text = QByteArray(9000, 'x'), .data = QByteArray(31000, 'd')};
    const QByteArray bytes = encoded(longest);
    EXPECT_LE(bytes.size(), MessageLink::longestMessage);
    EXPECT_EQ(decoded(bytes)->data, longest.data);
    EXPECT_EQ(decoded(bytes)->text.size(), 1024);
    const QByteArray without = encoded({.kind = Kind::Stored, .text = "t", .data = QByteArray(40000, 'd')});
    EXPECT_EQ(decoded(without), (WindowMessage{.kind = Kind::Stored, .text = "t"}));
    EXPECT_FALSE(decoded(bytes + QByteArray(2000, 'd')));
}

} // namespace
