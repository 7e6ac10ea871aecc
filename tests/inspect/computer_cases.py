import datetime
import hashlib

from machine_case import ABORT, ABSENT, HELPER_PATH, Case, machine

GROUP = "group.fernhollow.Quindle"
EXPERT = "IOPlatformExpertDevice"
ATTRIBUTES = ("/System/Library/PrivateFrameworks/ServerInformation.framework/Versions/A/Resources/"
              "English.lproj/SIMachineAttributes.plist")


def setting(name, value, **keys):
    return [(0, "settings/" + name, value)]


def stored(standard=None, suite=None, **keys):
    return machine(standard=standard, suite=suite, **keys)


SETTINGS = [
    Case("defaults of every setting", machine(), [
        (0, "settings", {
            "autoUpload": False, "temperatureSettingIndex": 0, "showIconsInMenuBar": 0, "temperatureWarningTag": 0,
            "customStatusBar": "%p%", "runInBackground": False, "bundleVersionAtQuit": None,
            "bundleVersionAtQuitText": None, "statusBarString": None, "runInBackgroundOwn": False,
            "firstStart": False}),
        (0, "defaults", {"standard": {"runInBackground": False}, GROUP: {}})]),
    Case("true is 1", stored(suite={"showIconsInMenuBar": True}), setting("showIconsInMenuBar", 1)),
    Case("1 is true", stored(suite={"autoUpload": 1}), setting("autoUpload", True)),
    Case("2 is no boolean", stored(suite={"autoUpload": 2}), setting("autoUpload", False)),
    Case("a text is no number", stored(suite={"temperatureSettingIndex": "1"}), setting("temperatureSettingIndex", 0)),
    Case("a fraction is no whole number", stored(suite={"temperatureWarningTag": 1.5}),
         setting("temperatureWarningTag", 0)),
    Case("a real without fraction is", stored(suite={"temperatureWarningTag": 2.0}), setting("temperatureWarningTag", 2)),
    Case("one key, two readings: text", stored({"bundleVersionAtQuit": "12"}),
         setting("bundleVersionAtQuit", None) + setting("bundleVersionAtQuitText", "12")),
    Case("one key, two readings: number", stored({"bundleVersionAtQuit": 12}),
         setting("bundleVersionAtQuit", 12) + setting("bundleVersionAtQuitText", None)),
    Case("empty texts are texts", stored({"statusBarString": ""}, {"customStatusBar": ""}),
         setting("statusBarString", "") + setting("customStatusBar", "")),
    Case("own flag follows the shared one at launch, false included", stored({"runInBackground": True}),
         setting("runInBackgroundOwn", False) + [(0, "defaults/standard/runInBackground", False)]),
    Case("and only at launch", stored(steps=[{"Defaults": {GROUP: {"runInBackground": True}}}]),
         [(1, "settings/runInBackground", True), (1, "settings/runInBackgroundOwn", False)]),
    Case("shared flag is copied", stored(suite={"runInBackground": True}), setting("runInBackgroundOwn", True)),
    Case("suite that cannot be opened", stored({"runInBackground": True}, {"showIconsInMenuBar": 1},
                                               SuiteUnavailable=True),
         setting("firstStart", None) + setting("showIconsInMenuBar", 0) + setting("customStatusBar", "%p%")
         + setting("runInBackgroundOwn", False)),
    Case("removed and laid over", stored({"statusBarString": "a", "other": [1, b"\x01", 2.5]}, steps=[
        {"Remove": ["Defaults/standard/statusBarString", "Defaults/none/x", "nothing"],
         "Defaults": {"standard": {"more": 1}}}]),
         [(1, "defaults/standard", {"other": [1, "AQ==", 2.5], "more": 1, "runInBackground": False})]),
]


def bundle(**parts):
    return machine(Bundle=parts)


def opened(path):
    return bundle(Path=path, Info={"CFBundleVersion": 1}) | {"Steps": [{"Actions": ["openApplication"]}, {}]}


APPLICATION = [
    Case("version is a text", bundle(Info={"CFBundleVersion": "123"}), [(0, "app/versionItem", "Version 123")]),
    Case("version is a number", bundle(Info={"CFBundleVersion": 123}), [(0, "app/versionItem", "Version 123")]),
    Case("no version", bundle(Path=HELPER_PATH, Info={"CFBundleName": "x"}), ABORT),
    Case("no information", bundle(Path=HELPER_PATH), ABORT),
    Case("folder of the main application", opened("/a/Quindle.app/Contents/Resources/Quindle-Helper.app"),
         [(0, "app/launched", []), (1, "app/launched", ["/a"]), (2, "app/launched", [])]),
    Case("root stays root", opened("/Quindle-Helper.app"), [(1, "app/launched", ["/"])]),
    Case("unknown path", opened(""), [(1, "app/launched", [""])]),
    Case("sleep, wake and notifications without a battery",
         machine(steps=[{"Actions": ["sleep", "wake", "SettingsChangedNotification", "WillUpdateImmediately",
                                     "battery.toggleAge", "battery.close"]}]), [(1, "app/refreshes", 3)]),
]

LAUNCHED = datetime.datetime(2024, 5, 1, 12, 0, 0)


def after(seconds):
    return {"Now": LAUNCHED + datetime.timedelta(seconds=seconds)}


def mark(line, text):
    return [(line, "app/lastDailyUploadToOnlineService", text)]


DAILY = [
    Case("a day to the second is not over", stored(suite={"autoUpload": True}, Now=LAUNCHED, steps=[after(86400)]),
         mark(0, "2024-05-01T12:00:00+00:00") + mark(1, "2024-05-01T12:00:00+00:00")),
    Case("a day later the mark moves and observers double",
         stored(suite={"autoUpload": True}, Now=LAUNCHED,
                steps=[after(86401), {"Actions": ["SettingsChangedNotification"]}]),
         mark(1, "2024-05-02T12:00:01+00:00") + [(1, "app/refreshes", 1), (2, "app/refreshes", 5)]),
    Case("time stands still", machine(Now=LAUNCHED, steps=[{}]), mark(1, "2024-05-01T12:00:00+00:00")),
    Case("times are local", machine(Now=LAUNCHED), mark(0, "2024-05-01T17:45:00+05:45"), {"TZ": "Asia/Kathmandu"}),
    Case("times west of Greenwich", machine(Now=LAUNCHED), mark(0, "2024-05-01T09:30:00-02:30"),
         {"TZ": "America/St_Johns"}),
]


def model(value, **keys):
    return machine(mac={"model": value, "IOPlatformSerialNumber": "C02MN1TXF5YW"}, **keys)


def mac(name, value, line=0):
    return [(line, "mac/" + name, value)]


def pictured(files):
    return model(b"MacBookAir4,2\0", Files={ATTRIBUTES: files})


COMPUTER = [
    Case("model up to the first NUL", model(b"MacBookAir4,2\0junk"), mac("Model", "MacBookAir4,2")),
    Case("model without NUL", model(b"MacBookAir4,2"), mac("Model", "MacBookAir4,2")),
    Case("model that is no UTF-8", model(b"\xff\x00"), mac("Model", None)),
    Case("model of nothing", model(b"\0"), mac("Model", "")),
    Case("model that is a text", model("MacBookAir4,2"), ABORT),
    Case("serial that is no text", machine(mac={"IOPlatformSerialNumber": 5}), ABORT),
    Case("no expert device", machine(), mac("Model", None) + mac("Serial", None) + mac("Name", "")),
    Case("read once", model(b"MacBookAir4,2\0", HostName="Old", steps=[
        {"HostName": "New", "Registry": {EXPERT: {"model": b"Other1,1\0", "IOPlatformSerialNumber": "NEW"}}}]),
         mac("Name", "Old", 1) + mac("Model", "MacBookAir4,2", 1) + mac("Serial", "C02MN1TXF5YW", 1)),
    Case("path of the attributes", machine(), mac("privateFrameworksURL", ATTRIBUTES)),
    Case("picture's name", pictured({"MacBookAir4,2": {"hardwareImageName": "mba"}}), mac("hardwareImageName", "mba")),
    Case("picture's name of another type", pictured({"MacBookAir4,2": {"hardwareImageName": 5}}),
         mac("hardwareImageName", None)),
    Case("attributes of another type", pictured({"MacBookAir4,2": "x"}), mac("hardwareImageName", None)),
    Case("attributes of another model", pictured({"Other1,1": {"hardwareImageName": "x"}}),
         mac("hardwareImageName", None)),
    Case("no attributes", model(b"MacBookAir4,2\0"), mac("hardwareImageName", None)),
    Case("file removed", pictured({"MacBookAir4,2": {"hardwareImageName": "mba"}}) | {
        "Steps": [{"Remove": ["Files/" + ATTRIBUTES]}]}, mac("hardwareImageName", None, 1)),
    Case("no battery key inside", machine(), mac("Battery", ABSENT)),
]



def serial(text, **keys):
    return machine(mac={"model": b"MacBookAir4,2\0", "IOPlatformSerialNumber": text}, **keys)


def digest(text):
    return hashlib.md5(text.encode()).hexdigest()


def computer_id(value, text, name):
    return Case(name, machine(mac=value), mac("generateMacID", digest(text)))


MONDAY = datetime.datetime(2014, 5, 12)

DATES = [
    Case("weeks are counted in seconds: summer time ends early", serial("C02MN1TXF5YW"),
         mac("ManufactureDate", "2014-05-12T01:00:00+02:00") + mac("ManufactureDateString", "2014-05-12"),
         {"TZ": "Europe/Berlin"}),
    Case("weeks are counted in seconds: summer time in January", serial("C02MN1TXF5YW"),
         mac("ManufactureDate", "2014-05-11T23:00:00+10:00") + mac("ManufactureDateString", "2014-05-11"),
         {"TZ": "Australia/Sydney"}),
    Case("a serial of 10 characters leaves the moment of launch", serial("C02MN1TXF5",
                                                                         Now=datetime.datetime(2015, 1, 2, 3, 4, 5)),
         mac("ManufactureDate", "2015-01-02T03:04:05+00:00") + mac("ManufactureDateString", "2015-01-02")
         + mac("CustomAge", "0 days") + mac("getBuildDateSerialString", "") + mac("getModelStringFromSerial", "")),
    Case("date and code of twelve characters", serial("C02MN1TXF5YW"),
         mac("getBuildDateSerialString", "MN") + mac("getModelStringFromSerial", "F5YW")),
    Case("date and code of eleven characters", serial("W80123ABCDE"),
         mac("getBuildDateSerialString", "012") + mac("getModelStringFromSerial", "CDE")),
    Case("the computer's age grows only when toggled",
         serial("C02MN1TXF5YW", Now=MONDAY + datetime.timedelta(days=1),
                steps=[{"Now": MONDAY + datetime.timedelta(days=62)}, {"Actions": ["mac.toggleAge"]}]),
         mac("CustomAge", "1 days") + mac("CustomAge", "1 days", 1) + mac("CustomAge", "2 months", 2)
         + [(2, "defaults/standard/QDMacAgeMode", 1)]),
    Case("stored age mode as a text", serial("C02MN1TXF5YW", Now=datetime.datetime(2016, 5, 12),
                                             standard={"QDMacAgeMode": "2"}), mac("CustomAge", "2.0 years")),
]

IDENTIFIERS = [
    computer_id({"model": b"MacBookAir4,2\0", "IOPlatformSerialNumber": "C02MN1TXF5YW"},
                'C02MN1TXF5YWOptional("MacBookAir4,2")', "serial and model"),
    computer_id({"model": b"\xff\0"}, "nil", "model that is no UTF-8"),
    computer_id({"model": b"\0"}, 'Optional("")', "model of nothing"),
    Case("read again each time", serial("C02MN1TXF5YW", steps=[
        {"Registry": {EXPERT: {"IOPlatformSerialNumber": "W80123ABCDE"}}}]),
         mac("generateMacID", digest('W80123ABCDEOptional("MacBookAir4,2")'), 1)
         + mac("getBuildDateSerialString", "012", 1) + mac("Serial", "C02MN1TXF5YW", 1)),
]

VERSION_FILE = "/System/Library/CoreServices/SystemVersion.plist"

SYSTEM = [
    Case("system's version of another type", machine(Files={VERSION_FILE: {"ProductVersion": 10}}),
         mac("OSXVersion", None)),
    Case("no system version", machine(), mac("OSXVersion", None)),
    Case("model that is no UTF-8 has no type", model(b"\xff\x00"), mac("Type", "")),
    Case("model cache of another type", serial("C02MN1TXF5YW", standard={"modelStringCache": "x"}),
         mac("Serial", "C02MN1TXF5YW")),
]

CASES = DATES + IDENTIFIERS + SYSTEM + SETTINGS + APPLICATION + DAILY + COMPUTER
