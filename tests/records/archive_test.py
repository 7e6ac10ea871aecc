"""archive_test.py INVENT_HISTORY: an archive that was written here, read with another implementation of property lists and by
the rules of the platform's own unarchiver."""

import plistlib
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

INVENT_HISTORY = sys.argv.pop(1)

ANCESTRY = {
    "NSMutableArray": ["NSMutableArray", "NSArray", "NSObject"],
    "NSArray": ["NSArray", "NSObject"],
    "NSDictionary": ["NSDictionary", "NSObject"],
    "NSDate": ["NSDate", "NSObject"],
}


class Unarchived:
    """Reads strictly: what the platform's unarchiver would refuse raises an exception."""

    def __init__(self, archive):
        self.objects = archive["$objects"]
        assert archive["$archiver"] == "NSKeyedArchiver" and archive["$version"] == 100000
        assert self.objects[0] == "$null"
        self.root = self.value(archive["$top"]["root"])

    def value(self, reference):
        assert isinstance(reference, plistlib.UID)
        value = self.objects[reference.data]
        if not isinstance(value, dict):
            assert isinstance(value, (str, int, float)), value
            return value
        description = self.objects[value["$class"].data]
        name = description["$classname"]
        assert description["$classes"] == ANCESTRY[name]
        if name == "NSDate":
            assert isinstance(value["NS.time"], float)
            return ("date", value["NS.time"])
        items = [self.value(item) for item in value["NS.objects"]]
        if name != "NSDictionary":
            return items
        keys = [self.value(key) for key in value["NS.keys"]]
        assert len(keys) == len(items) == len(set(keys)) and all(isinstance(key, str) for key in keys)
        return dict(zip(keys, items))


class Archive(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([INVENT_HISTORY, folder, "2026-11-22", "40"], check=True)
            cls.records = Unarchived(plistlib.loads(Path(folder, "QuindleData.qndarchive").read_bytes())).root

    def test_all_records_are_there(self):
        self.assertGreater(len(self.records), 25)
        dates = [record["Data.SnapshotDate"] for record in self.records]
        self.assertEqual(dates, sorted(dates))
        self.assertTrue(all(kind == "date" for kind, _ in dates))

    def test_values_have_their_types(self):
        for record in self.records:
            self.assertIs(record["Data.Uploaded"], False)
            self.assertIs(record["Data.Raw"]["ExternalConnected"], True)
            self.assertIs(type(record["Battery.StateOfHealth"]), float)
            self.assertIs(type(record["Battery.FullChargeCapacity"]), int)
            self.assertEqual(record["Battery.DesignCapacity"], 5000)
            self.assertEqual(record["Data.Version"], "3.4")
            self.assertEqual(record["Data.Summary"].split("%")[0], "%.0f" % record["Battery.StateOfHealth"])


if __name__ == "__main__":
    unittest.main()
