"""Writes keyed archives as the platform's encoder does, binary or XML, and damaged ones on purpose."""

import datetime
import plistlib

EPOCH = datetime.datetime(2001, 1, 1)


class Instance:
    """An object with its class named: Instance("NSMutableArray", [...]) or any class with its own fields."""

    def __init__(self, class_name, value=None, fields=None, inherited=()):
        self.class_name = class_name
        self.value = value
        self.fields = fields
        self.inherited = list(inherited) + ["NSObject"]


class Archiver:
    def __init__(self, xml=False):
        self.xml = xml
        self.objects = ["$null"]
        self.classes = {}
        self.shared = {}

    def reference(self, number):
        return {"CF$UID": number} if self.xml else plistlib.UID(number)

    def append(self, value):
        self.objects.append(value)
        return self.reference(len(self.objects) - 1)

    def class_reference(self, name, inherited):
        key = (name, tuple(inherited))
        if key not in self.classes:
            self.classes[key] = self.append({"$classname": name, "$classes": [name, *inherited]})
        return self.classes[key]

    def add(self, value):
        """The reference to `value`; one Python object is archived once, however often it appears."""
        if value is None:
            return self.reference(0)
        known = self.shared.get(id(value))
        if known is not None:
            return known
        if isinstance(value, (dict, list, Instance, datetime.datetime)):
            return self.add_instance(value)
        self.shared[id(value)] = self.append(value)
        return self.shared[id(value)]

    def add_instance(self, value):
        place = self.append({})
        self.shared[id(value)] = place
        self.objects[(place["CF$UID"] if self.xml else place.data)] = self.fields_of(value)
        return place

    def fields_of(self, value):
        if isinstance(value, dict):
            value = Instance("NSDictionary", value)
        elif isinstance(value, list):
            value = Instance("NSArray", value)
        elif isinstance(value, datetime.datetime):
            value = Instance("NSDate", fields={"NS.time": (value - EPOCH).total_seconds()})
        fields = dict(value.fields or {})
        if isinstance(value.value, dict):
            fields["NS.keys"] = [self.add(key) for key in value.value]
            fields["NS.objects"] = [self.add(item) for item in value.value.values()]
        elif isinstance(value.value, list):
            fields["NS.objects"] = [self.add(item) for item in value.value]
        fields["$class"] = self.class_reference(value.class_name, value.inherited)
        return fields

    def bytes(self, root):
        archive = {"$version": 100000, "$archiver": "NSKeyedArchiver", "$top": {"root": root}, "$objects": self.objects}
        return plistlib.dumps(archive, fmt=plistlib.FMT_XML if self.xml else plistlib.FMT_BINARY)


def archived(root, xml=False):
    archiver = Archiver(xml)
    return archiver.bytes(archiver.add(root))


def of_objects(*objects, root=1, **top):
    """An archive of exactly these objects after "$null"; CLASSES of `class_at` are numbered by the caller."""
    archive = {"$version": 100000, "$archiver": "NSKeyedArchiver", "$top": {"root": plistlib.UID(root)},
               "$objects": ["$null", *objects]}
    archive.update(top)
    return plistlib.dumps({key: value for key, value in archive.items() if value is not None},
                          fmt=plistlib.FMT_BINARY)


def array_object(class_number, *references):
    return {"$class": plistlib.UID(class_number), "NS.objects": [plistlib.UID(number) for number in references]}


def class_object(name, *inherited):
    return {"$classname": name, "$classes": [name, *inherited, "NSObject"]}
