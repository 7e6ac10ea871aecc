#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

/// Model names from the vendor's product-information service.
namespace quindle {

class Bundle;
class UrlSession;

/// The host of the service, as the bundle's information dictionary has it ("QDProductInformationHost"); empty
/// when it has none or no text.
QString productInformationHost(const Bundle& bundle);

/// The address of the answer for a configuration code. Plain HTTP is the service's protocol.
QString productInformationAddress(const QString& host, const QString& code);

/// The first line of `name` with a parenthesised text, from its first "(" to its last ")", both included and
/// at least one character between them.
std::optional<QString> parenthesisedText(const QString& name);

/// The parenthesised part of the marketing name in the service's answer; nothing for an answer that is not
/// well-formed or has no such name.
std::optional<QString> modelTextFromReply(const QString& code, const QByteArray& reply);

/// Asks the service for the text that distinguishes models of the code's family; nothing after any failure.
/// Waits for the answer. Without a configured host the address has none either; only a recorded computer
/// answers it.
std::optional<QString> onlineModelText(const QString& code, const Bundle& bundle, UrlSession& urlSession);

} // namespace quindle
