// The delegate's part in the history of snapshots: the saved one, the daily gate and the upload.

#include <QJsonDocument>
#include <QLoggingCategory>

#include "app/HelperAppDelegate.h"
#include "common/Translation.h"
#include "history/DailyGate.h"
#include "history/DailyUpload.h"
#include "history/SavedHistory.h"
#include "mac/OSXVersionName.h"
#include "mac/QDMac.h"
#include "platform/Bundle.h"
#include "platform/Host.h"
#include "platform/Platform.h"
#include "platform/UrlSession.h"
#include "settings/ApplicationPreferences.h"
#include "settings/StatisticsHost.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(uploadLog, "quindle.upload", QtInfoMsg)

void takeAnswer(int status, const QByteArray& body)
{
    constexpr int success = 200;
    if (status == success && !body.isEmpty())
        qCDebug(uploadLog).noquote() << QString::fromUtf8(body);
}

} // namespace

QVariantList HelperAppDelegate::getSavedDataArray() const
{
    const QStringList directories = m_platform.userDirectories.applicationSupportDirectories();
    if (directories.isEmpty())
        return {};
    return savedRecords(savedHistoryFile(directories.constFirst()));
}

void HelperAppDelegate::checkForAutoSaveData()
{
    const QDateTime now = m_platform.clock.now();
    if (!isDailyUploadDue(m_lastDailyUploadToOnlineService, now))
        return;
    loadSettings(); // inherited: registers the observers once more, whatever the upload setting is
    if (!m_preferences.autoUpload())
        return;
    m_lastDailyUploadToOnlineService = now; // before the upload: one that fails is not tried again today
    uploadDailyMacDataToQNDOnline();
    Q_EMIT dailyUploadStarted();
}

void HelperAppDelegate::uploadDailyMacDataToQNDOnline()
{
    send(currentDailyUpload());
}

// inherited: without a caller in this program, see the header.
void HelperAppDelegate::uploadDailyMacDataToQNDOnline_old()
{
    const auto snapshot = m_myMac->getDataForSaving(false);
    if (snapshot)
        send(dailyUpload(*snapshot, shortVersion(m_platform.bundle), SerialText::Clear));
}

std::optional<DailyUpload> HelperAppDelegate::currentDailyUpload() const
{
    const auto snapshot = m_myMac->getDataForSaving(false);
    if (!snapshot)
        return std::nullopt;
    return dailyUpload(*snapshot, shortVersion(m_platform.bundle), SerialText::Masked);
}

QString HelperAppDelegate::dailyUploadText() const
{
    const QString host = statisticsHost(m_platform.bundle);
    const auto upload = currentDailyUpload();
    if (host.isEmpty())
        return {};
    if (!upload)
        return translated("Preferences",
                          "Nothing would be sent now: a value that names the battery is missing.");
    const auto body = QJsonDocument::fromJson(QByteArray::fromBase64(upload->body));
    return QStringLiteral("POST ") + dailyUploadUrl(host) + QStringLiteral("\n\n") +
           QString::fromUtf8(body.toJson(QJsonDocument::Indented));
}

void HelperAppDelegate::send(const std::optional<DailyUpload>& upload)
{
    const QString host = statisticsHost(m_platform.bundle);
    if (upload && !host.isEmpty())
        m_platform.urlSession.post(dailyUploadUrl(host), upload->body, takeAnswer);
}

} // namespace quindle
