#pragma once

#include <memory>

#include <QApplication>
#include <QLabel>

#include "application/ApplicationProgram.h"
#include "settings/ApplicationPreferences.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/Texts.h"

namespace quindle::test {

/// The application on a computer with a history of its own.
struct HistoryFixture : TemporaryHistory
{
    HistoryFixture()
    {
        computer.setComputer(latin("MacBookAir6,2"), latin("C02MN1TXF5YW"));
        computer.battery() = {{latin("CurrentCapacity"), qint64{66}},
                              {latin("MaxCapacity"), qint64{4000}},
                              {latin("DesignCapacity"), qint64{5000}},
                              {latin("CycleCount"), qint64{42}},
                              {latin("BatterySerialNumber"), latin("D86SECRET")}};
        computer.userDirectories.applicationSupport = {folder()};
    }

    void show(const char* page)
    {
        if (!program) {
            preferences = std::make_unique<ApplicationPreferences>(computer.platform);
            program =
                std::make_unique<ApplicationProgram>(computer.platform, *preferences, computer.bundle, true);
            program->present();
        }
        program->window().showPage(latin(page));
        QApplication::processEvents();
    }

    template <typename Control>
    Control* control(const char* text)
    {
        for (Control* candidate : program->window().findChildren<Control*>())
            if (candidate->accessibleName() == latin(text) ||
                candidate->property("text").toString().remove(u'&') == latin(text))
                return candidate;
        return nullptr;
    }

    bool says(const char* text)
    {
        for (const QLabel* label : program->window().findChildren<QLabel*>())
            if (label->isVisible() && label->text() == latin(text))
                return true;
        return false;
    }

    void store(int count)
    {
        SnapshotArchive archived(archive());
        for (int number = 0; number < count; ++number)
            archived.append(recordAt(1420000000 + number * 86400, 4000 - number));
    }

    qsizetype storedCount() const { return SnapshotArchive(archive()).read().records.size(); }

    FakePlatform computer;
    std::unique_ptr<ApplicationPreferences> preferences;
    std::unique_ptr<ApplicationProgram> program;
};

} // namespace quindle::test
