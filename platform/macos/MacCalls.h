#pragma once

#include <memory>

#include "platform/Bundle.h"
#include "platform/Host.h"
#include "platform/NotificationCenter.h"
#include "platform/Workspace.h"
#include "platform/macos/SystemCalls.h"

/// The adapters to the system's frameworks, in `system`. They need a running QCoreApplication, whose
/// loop on a Mac is the system's.
namespace quindle {

std::unique_ptr<RegistryCalls> systemRegistry();
std::unique_ptr<PowerCalls> systemPowerSources();

/// Those of the running bundle, whose identifier `domain` is.
std::unique_ptr<DefaultsCalls> standardDefaults(const QString& domain);

/// Null for a name that the system refuses.
std::unique_ptr<DefaultsCalls> suiteDefaults(const QString& name);

std::unique_ptr<NotificationCalls> systemNotifications();
std::unique_ptr<WorkspaceNotifications> systemSleepNotifications();

/// Only for a program that runs from a bundle: the system ends any other.
std::unique_ptr<NoticeCalls> systemNotices();

std::unique_ptr<TimerCalls> systemTimers();

/// Whether the helper is started at login, asked by itself, and by the application that carries it.
std::unique_ptr<LoginCalls> ownLoginItem();
std::unique_ptr<LoginCalls> loginItemNamed(const QString& identifier);

std::unique_ptr<OpenCalls> systemWorkspace();
std::unique_ptr<HttpCalls> systemHttp();

/// A new item of that length; a negative one fits its contents.
std::unique_ptr<StatusItemCalls> systemStatusItem(double length);

std::unique_ptr<Application> systemApplication();

/// The bundle that the program runs from, and any other.
std::unique_ptr<Bundle> runningBundle();
std::unique_ptr<Bundle> bundleAt(const QString& path);

std::unique_ptr<Host> systemHost();
std::unique_ptr<UserDirectories> systemUserDirectories();

QString homeFolderOfSystem();

} // namespace quindle
