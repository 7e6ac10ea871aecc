import base64
import datetime
import hashlib
import json
import plistlib
from plistlib import UID

from keyed_archive import Instance, archived, array_object, class_object, of_objects
from machine_case import ABSENT, HELPER_PATH, Case, machine

LAUNCHED = datetime.datetime(2014, 3, 1, 23, 30)
BATTERY = {
    "CurrentCapacity": 4000, "MaxCapacity": 4512, "DesignCapacity": 5200, "CycleCount": 57, "ManufactureDate": 17506,
    "Manufacturer": "SMP", "DeviceName": "bq20z451", "BatterySerialNumber": "D865033Y2CXF9CPAW",
    "Voltage": 12000, "Amperage": -1000, "ExternalConnected": False, "IsCharging": False, "FullyCharged": False,
}
EXPERT = {"model": b"NotListed1,1\0", "IOPlatformSerialNumber": "C02MN1TXF5YW"}
LISTED = EXPERT | {"model": b"MacBookAir6,2\0"}
VERSIONS = {"Path": HELPER_PATH, "Info": {"CFBundleVersion": "7", "CFBundleShortVersionString": "1.2"}}


def pack(expert=EXPERT, **changes):
    keys = {name: changes.pop(name) for name in list(changes) if name in KEYS}
    properties = {key: value for key, value in (BATTERY | changes).items() if value is not None}
    return machine(properties, expert, **({"Now": LAUNCHED, "Bundle": VERSIONS} | keys))


KEYS = ("Now", "Bundle", "steps", "suite", "ApplicationSupport")


def snapshot(key, value, line=0):
    return (line, "snapshot", lambda record: record is not None and record.get(key, ABSENT) is value
            if value is ABSENT else record is not None and equal(record.get(key, ABSENT), value))


def equal(actual, wanted):
    return type(actual) is type(wanted) and actual == wanted


def everything(record):
    return record == {
        "Battery.DesignCapacity": 5200, "Battery.Manufacturer": "Simplo", "Battery.StateOfHealth": 4512 / 5200 * 100,
        "Battery.LegacyAgeInMonths": record["Battery.LegacyAgeInMonths"], "Battery.CycleCount": 57,
        "Battery.ActualDesignCapacity": 0, "Battery.ReportedDesignCapacity": 5200, "Battery.ManufactureDateRaw": 17506,
        "Battery.FullChargeCapacity": 4512, "Battery.DeviceName": "bq20z451",
        "Battery.BatteryID": hashlib.md5(b"D865033Y2CXF9CPAW17506").hexdigest(), "Mac.Model": "NotListed1,1",
        "Mac.ManufactureDateRaw": "MN",
        "Mac.ID": hashlib.md5(b'C02MN1TXF5YWOptional("NotListed1,1")').hexdigest(), "Data.Summary": "87% (4512 mAh)",
        "Data.Uploaded": False, "Data.Type": "Mac", "Data.SnapshotDate": "2014-03-01T23:30:00+00:00",
        "Data.ApplicationVersion": "1.2", "Data.Raw": BATTERY, "Data.Version": "3.4"}


def without_entry(record):
    """The registry's texts go with the entry, its numbers are 0."""
    return len(record) == 21 - 3 and "Battery.Manufacturer" not in record and "Battery.DeviceName" not in record


def bundle(**info):
    return {"Path": HELPER_PATH, "Info": {"CFBundleVersion": "7"} | info}


def health(maximum, design):
    return pack(MaxCapacity=maximum, DesignCapacity=design)


SNAPSHOTS = [
    Case("every key", pack(), [(0, "snapshot", everything)]),
    Case("no battery, no record", machine(mac=EXPERT), [(0, "snapshot", None), (0, "upload", None)]),
    Case("types stay", health(100, 100), [snapshot("Battery.StateOfHealth", 100.0), snapshot("Battery.CycleCount", 57),
                                          snapshot("Data.Uploaded", False)]),
    Case("closed registry entry", pack(LISTED, steps=[{"Actions": ["battery.close"]}]),
         [snapshot("Data.Raw", BATTERY), snapshot("Data.Raw", ABSENT, 1), (1, "snapshot", without_entry),
          (1, "upload", lambda upload: "Data.Raw" not in upload["record"] and is_whole(upload))]),
    Case("no texts", pack(Manufacturer=None, DeviceName=None),
         [snapshot("Battery.Manufacturer", ABSENT), snapshot("Battery.DeviceName", ABSENT)]),
    Case("no version", pack(Bundle=bundle()),
         [snapshot("Data.ApplicationVersion", ABSENT),
          (0, "upload", lambda upload: "Application.SendingVersion" not in upload["record"])]),
    Case("version that is a number", pack(Bundle=bundle(CFBundleShortVersionString=2.0)),
         [snapshot("Data.ApplicationVersion", "2"),
          (0, "upload", lambda upload: upload["record"]["Application.SendingVersion"] == "2")]),
    Case("summary: half to even, up", health(875, 1000), [snapshot("Data.Summary", "88% (875 mAh)")]),
    Case("summary: half to even, down", health(865, 1000), [snapshot("Data.Summary", "86% (865 mAh)")]),
    Case("summary: no design capacity", health(4512, 0), [snapshot("Data.Summary", "inf% (4512 mAh)")]),
    Case("summary: no capacities", pack(CurrentCapacity=None, MaxCapacity=None, DesignCapacity=None),
         [snapshot("Data.Summary", "nan% (0 mAh)")]),
    Case("packed date that is missing is 0", pack(ManufactureDate=None), [snapshot("Battery.ManufactureDateRaw", 0)]),
    Case("serial of ten characters", pack({"model": b"X1,1\0", "IOPlatformSerialNumber": "C02MN1TXF5"}),
         [snapshot("Mac.ManufactureDateRaw", "")]),
    Case("no model", pack({"IOPlatformSerialNumber": "C02MN1TXF5YW"}),
         [snapshot("Mac.Model", ABSENT), (0, "upload", None)]),
]


def identity(record):
    keys = ("Battery.BatteryID", "Battery.CycleCount", "Battery.FullChargeCapacity", "Battery.DesignCapacity",
            "Mac.Model", "Battery.ManufactureDateRaw", "Data.SnapshotDate")
    return "".join(str(record[key]) for key in keys)


def is_whole(upload):
    record = upload["record"]
    body = json.loads(base64.b64decode(upload["body"], validate=True))
    return (body == [record] and body[0]["Data.Uploaded"] is False and type(body[0]["Battery.CycleCount"]) is int
            and record["Data.Daily"] == "1" and record["Data.Hash"] == hashlib.sha1(identity(record).encode()).hexdigest()
            and b": " not in base64.b64decode(upload["body"]).replace(b"\": \"", b""))


def sent(key, value, line=0):
    return (line, "upload", lambda upload: equal(upload["record"][key], value))


def raw_text(upload):
    return base64.b64decode(upload["record"]["Data.Raw"], validate=True).decode()


def masked(serial, shown):
    wanted = f"    BatterySerialNumber = {shown};\n"
    return Case(f"mask of {serial!r}", pack(BatterySerialNumber=serial),
                [(0, "upload", lambda upload: wanted in raw_text(upload)),
                 (0, "snapshot", lambda record: record["Data.Raw"]["BatterySerialNumber"] == serial)])


def is_description(upload):
    return raw_text(upload) == (
        "{\n    Amperage = \"-1000\";\n    BatterySerialNumber = D865033Y2CXF9xxxx;\n    CurrentCapacity = 4000;\n"
        "    CycleCount = 57;\n    DesignCapacity = 5200;\n    DeviceName = bq20z451;\n    ExternalConnected = 0;\n"
        "    FullyCharged = 0;\n    IsCharging = 0;\n    ManufactureDate = 17506;\n    Manufacturer = SMP;\n"
        "    MaxCapacity = 4512;\n    Voltage = 12000;\n}")


def hash_of(path):
    return lambda upload: path(upload["record"]["Data.Hash"])


UPLOADS = [
    Case("body, record and hash", pack(), [(0, "upload", is_whole), sent("Data.SnapshotDate", "2014-03-01"),
                                           sent("Application.SendingVersion", "1.2"), (0, "upload", is_description)]),
    Case("negative numbers in the identity", pack(CycleCount=-5), [(0, "upload", is_whole),
                                                                   sent("Battery.CycleCount", -5)]),
    Case("largest number stays exact", pack(CycleCount=2**63 - 1),
         [(0, "upload", is_whole), sent("Battery.CycleCount", 2**63 - 1)]),
    Case("whole health is a number", health(1000, 1000), [(0, "upload", is_whole)]),
    Case("fraction of health reads back", health(1, 3), [(0, "upload", is_whole),
                                                         sent("Battery.StateOfHealth", 1 / 3 * 100)]),
    Case("day is local", pack(), [sent("Data.SnapshotDate", "2014-03-02"), (0, "upload", is_whole)],
         {"TZ": "Europe/Berlin"}),
    Case("listed model corrects the design capacity", pack(LISTED),
         [(0, "upload", lambda upload: upload["record"]["Battery.DesignCapacity"]
           == upload["record"]["Battery.ActualDesignCapacity"] != 5200), (0, "upload", is_whole)]),
    Case("health that JSON cannot hold", pack(DesignCapacity=None),
         [(0, "upload", None), (0, "snapshot/Battery", ABSENT), snapshot("Battery.StateOfHealth", "inf")]),
    masked("AAAAAA", "xxxxAA"),
    masked("ABCD12ABCD", "xxxx12xxxx"),
    masked("1234", "xxxx"),
    masked("123", "123"),
    masked("", '""'),
    masked("12\U0001F50B3", "1xxxx"),
    masked("\U0001F50B123", '"\\\\Ud83dxxxx"'.replace("\\\\", "\\")),
    Case("another serial in the entry stays", pack(Serial="D865033Y2CXF9CPAW"),
         [(0, "upload", lambda upload: "    Serial = D865033Y2CXF9CPAW;\n" in raw_text(upload))]),
]


def after(seconds, **keys):
    return {"Now": LAUNCHED + datetime.timedelta(seconds=seconds), **keys}


def allowed(value):
    return {"Defaults": {"group.fernhollow.Quindle": {"autoUpload": value}}}


def started(*counts):
    return [(line, "uploadsStarted", count) for line, count in enumerate(counts)]


def gate(name, steps, counts, auto=True, keys=pack, binary=False):
    values = keys(suite={"autoUpload": auto}, steps=steps)
    return Case(name, plistlib.dumps(values, fmt=plistlib.FMT_BINARY) if binary else values, started(*counts))


def no_battery(**keys):
    return machine(mac=EXPERT, Now=LAUNCHED, **keys)


GATE = [
    gate("a day", [after(86400)], (0, 0)),
    gate("a day and a second, then ten more", [after(86401), after(86411)], (0, 1, 0)),
    gate("a day and a thousandth", [after(86400.0), after(86400.001)], (0, 0, 1), binary=True),
    gate("not allowed, then allowed", [after(86401), after(86411) | allowed(True)], (0, 0, 1), auto=False),
    gate("not allowed for many days", [after(day * 86400 + 1) for day in range(1, 8)], (0,) * 8, auto=False),
    gate("clock set back, then forward", [after(-86400 * 3), after(86400), after(86401)], (0, 0, 0, 1)),
    gate("counts what has nothing to send", [after(86401)], (0, 1), keys=no_battery),
    gate("days measured from the last upload", [after(100000), after(172801), after(186401)], (0, 1, 0, 1)),
]

RECORD = {
    "Battery.DesignCapacity": 5200, "Battery.StateOfHealth": 100.0, "Battery.Manufacturer": "Simplo",
    "Data.Uploaded": False, "Data.SnapshotDate": datetime.datetime(2014, 3, 1, 23, 30),
    "Data.Raw": {"Voltage": 12000, "Amperage": -1000, "Nested": {"A": [1, 2.5, True, b"\x01\x02"]}, "Null": None},
    "Data.Version": "3.4",
}
SHOWN = RECORD | {
    "Data.SnapshotDate": "2014-03-01T23:30:00+00:00",
    "Data.Raw": {"Voltage": 12000, "Amperage": -1000, "Nested": {"A": [1, 2.5, True, "AQI="]}, "Null": None},
}


def saved(name, content, records, support=("support",), file="support/QuindleData.qndarchive", **environment):
    return Case(name, pack(ApplicationSupport=list(support)), [(0, "savedRecords", records)], environment,
                {file: content})


def one_value(name, value, shown):
    return saved(name, archived([{"k": value}]), [{"k": shown}])


def nested(levels):
    """Arrays inside each other: object 1 holds object 2 and so on; the class comes last."""
    return of_objects(*[array_object(levels + 1, number + 2) for number in range(levels - 1)],
                      array_object(levels + 1), class_object("NSArray"))


DICTIONARY = class_object("NSDictionary")

ARCHIVES = [
    saved("binary", archived([RECORD, {"old": 1}]), [SHOWN, {"old": 1}]),
    saved("XML", archived([RECORD, {"old": 1}], xml=True), [SHOWN, {"old": 1}]),
    saved("mutable root", archived(Instance("NSMutableArray", [RECORD], inherited=["NSArray"])), [SHOWN]),
    saved("mutable record", archived([Instance("NSMutableDictionary", {"k": 1}, inherited=["NSDictionary"])]), [{"k": 1}]),
    saved("no records", archived([]), []),
    saved("empty record", archived([{}]), [{}]),
    saved("order stays", archived([{"n": n} for n in (3, 1, 2)]), [{"n": 3}, {"n": 1}, {"n": 2}]),
    saved("shared record", archived([RECORD, RECORD]), [SHOWN, SHOWN]),
    saved("class known by what it inherits", archived([Instance("MyRecord", {"k": 1}, inherited=["NSDictionary"])]),
          [{"k": 1}]),
    one_value("set inside a record", Instance("NSSet", [1, "a"]), [1, "a"]),
    one_value("mutable text", Instance("NSMutableString", fields={"NS.string": "ä"}, inherited=["NSString"]), "ä"),
    one_value("text of bytes", Instance("NSString", fields={"NS.bytes": "ä".encode()}), "ä"),
    one_value("data in an object", Instance("NSMutableData", fields={"NS.data": b"\x01\x02"}), "AQI="),
    one_value("null object", Instance("NSNull"), None),
    one_value("date with a fraction", Instance("NSDate", fields={"NS.time": 0.5}), "2001-01-01T00:00:00+00:00"),
    one_value("date before 2001", Instance("NSDate", fields={"NS.time": -86400.0}), "2000-12-31T00:00:00+00:00"),
    one_value("negative number", -5, -5),
    one_value("largest unsigned number is its signed value", 2**64 - 1, -1),
    one_value("number keys inside", {1: "a"}, {"1": "a"}),
    one_value("text outside of ASCII", "\U0001F50B", "\U0001F50B"),
    one_value("empty text and data", ["", b""], ["", ""]),
    saved("date that is no number", archived([{"k": Instance("NSDate", fields={"NS.time": "x"})}]), []),
    saved("date that is not finite", archived([{"k": Instance("NSDate", fields={"NS.time": float("nan")})}]), []),
    saved("class that is not known", archived([{"k": Instance("MyClass", fields={"x": 1})}]), []),
    saved("text as an element", archived([RECORD, "x"]), []),
    saved("null as an element", archived([RECORD, Instance("NSNull")]), []),
    saved("nil as an element", archived([RECORD, None]), []),
    saved("number keys in a record", archived([RECORD, {1: "a"}]), []),
    saved("root is a record", archived(RECORD), []),
    *[saved("root is a set: " + name, archived(Instance(name, [RECORD], inherited=inherited)), [])
      for name, *inherited in (("NSSet",), ("NSMutableSet", "NSSet"), ("NSCountedSet", "NSMutableSet", "NSSet"),
                               ("NSOrderedSet",), ("NSMutableOrderedSet", "NSOrderedSet"))],
    saved("root is a text", archived("x"), []),
    saved("root is nil", of_objects(root=0), []),
    saved("keys numbered one by one", of_objects(
        {"$class": UID(5), "NS.object.0": UID(2)},
        {"$class": UID(6), "NS.key.1": UID(4), "NS.object.1": UID(4), "NS.key.0": UID(3), "NS.object.0": UID(4)},
        "k", "l", class_object("NSArray"), DICTIONARY), [{"k": "l", "l": "l"}]),
    saved("keys numbered with a gap", of_objects(
        {"$class": UID(4), "NS.object.0": UID(2)}, {"$class": UID(5), "NS.key.1": UID(3), "NS.object.1": UID(3)},
        "k", class_object("NSArray"), DICTIONARY), []),
    saved("object without a class", of_objects({"NS.objects": []}), []),
    saved("empty file", b"", []),
    saved("garbage", b"\x00\xff" * 5000, []),
    saved("a property list but no archive", plistlib.dumps([{"k": 1}]), []),
    saved("another archiver", of_objects(array_object(2), class_object("NSArray"), **{"$archiver": "Other"}), []),
    saved("no root", of_objects(array_object(2), class_object("NSArray"), **{"$top": {}}), []),
    saved("no objects", of_objects(**{"$objects": None}), []),
    saved("reference that leads nowhere", of_objects(array_object(2, 99), class_object("NSArray")), []),
    saved("array inside itself", of_objects(array_object(2, 1), class_object("NSArray")), []),
    saved("array inside itself, deeper", of_objects(array_object(3, 2), array_object(3, 1), class_object("NSArray")), []),
    saved("ten thousand levels", nested(10000), []),
    saved("keys without objects", of_objects(
        array_object(4, 2), {"$class": UID(5), "NS.keys": [UID(3)], "NS.objects": []}, "k", class_object("NSArray"),
        DICTIONARY), []),
    saved("a thousand shares of a thousand shares", of_objects(
        array_object(5, *[2] * 1000), array_object(5, *[3] * 1000), array_object(5, *[4] * 1000),
        array_object(5), class_object("NSArray")), []),
    saved("only the first directory counts", archived([RECORD]), [], support=("other", "support")),
    saved("home folder", archived([{"k": 1}]), [{"k": 1}], support=["~/Application Support"],
          file="home/Application Support/QuindleData.qndarchive", HOME="{folder}/home"),
    Case("no directories", pack(), [(0, "savedRecords", [])]),
    Case("a folder in its place", pack(ApplicationSupport=["a"]), [(0, "savedRecords", [])],
         files={"a/QuindleData.qndarchive/file": b""}),
]

CASES = SNAPSHOTS + UPLOADS + GATE + ARCHIVES
