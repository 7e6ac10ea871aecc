"""compare_declarations_test.py: what the comparison finds, on declarations invented for it."""

import tempfile
import unittest
from pathlib import Path

import compare_declarations

TYPES = """
declare const kBegin: interop.Pointer;

declare const QDKind: {
  Small: 1,
  Large: 2,
};

declare class QDBase extends NSObject {
  static sharedBase<This extends abstract new (...args: any) => any>(this: This): InstanceType<This>;

  static readonly defaultBase: QDBase;

  setValueForKey(value: interop.Object | null, key: string): void;
  length: number;
  finishWithHandler(handler: (p1: NSData, p2: NSError) => void | null): void;
}

declare class QDChild extends QDBase {
  isHidden(): boolean;
}

declare const QDOptions: {
  Bright: 4,
};

declare interface QDHearer extends NSObjectProtocol {
  senderDidSendText?(sender: QDBase, text: string): void;
}

declare class QDHearer extends NativeObject implements QDHearer {
}

declare function QDCreate(allocator: interop.Object, callback: (p1: number, p2: number) => void): interop.Object;
declare function QDNow(): number;
"""

HEADER = """
enum QDKind : unsigned { QDKindLarge = 2 };
enum : QDOptions { QDOptionsBright = 4 };
@protocol QDHearer
@optional
- (void)sender:(QDBase*)sender
    didSendText:(NSString*)text;
@end
@interface QDBase : NSObject
+ (instancetype)sharedBase;
+ (QDBase*)defaultBase;
- (void)setValue:(id)value
          forKey:(NSString*)key;
@property (readonly, copy) NSString* length;
- (void)finishWithHandler:(void (^)(NSData* data, NSError* error))handler;
@end
@interface QDChild : QDBase
- (BOOL)isHidden;
- (void)setValue:(id)value forKey:(NSString*)key; // inherited
@end
extern "C" {
extern const void* kBegin;
double QDNow();
void* QDCreate(void* allocator, void (*callback)(int, int));
}
"""

WRONG = {
    "class": ("QDChild", "QDGrandchild"),
    "protocol": ("@protocol QDHearer", "@protocol QDListener"),
    "selector of a protocol": ("didSendText:", "hasSentText:"),
    "option": ("QDOptionsBright = 4", "QDOptionsBright = 8"),
    "selector": ("finishWithHandler:", "endWithHandler:"),
    "selector with two parts": ("forKey:(NSString*)key;\n@prop", "atKey:(NSString*)key;\n@prop"),
    "one argument less": ("setValue:(id)value\n          forKey:(NSString*)key", "setValueForKey:(id)value"),
    "of the class": ("- (BOOL)isHidden", "+ (BOOL)isHidden"),
    "of the object": ("+ (QDBase*)defaultBase", "- (QDBase*)defaultBase"),
    "property": ("NSString* length", "NSString* width"),
    "function": ("QDNow", "QDThen"),
    "one argument more": ("QDNow()", "QDNow(int zone)"),
    "constant": ("kBegin", "kEnd"),
    "number of a value": ("QDKindLarge = 2", "QDKindLarge = 1"),
    "name of a value": ("QDKindLarge", "QDKindHuge"),
}


class Comparison(unittest.TestCase):
    def faults_of(self, header):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in (("h/Some/Some.h", header), ("t/Some.d.ts", TYPES)):
                Path(folder, name).parent.mkdir(parents=True)
                Path(folder, name).write_text(text, encoding="utf-8")
            return compare_declarations.compare(Path(folder, "h"), Path(folder, "t"))

    def test_what_is_the_same(self):
        faults, counts = self.faults_of(HEADER)
        self.assertEqual(faults, [])
        self.assertEqual(counts, {"classes": 2, "protocols": 1, "methods": 7, "properties": 1, "functions": 2, "constants": 1, "values": 2})

    def test_each_mistake_is_found(self):
        for what, (right, wrong) in WRONG.items():
            self.assertIn(right, HEADER, what)
            self.assertEqual(len(self.faults_of(HEADER.replace(right, wrong))[0]) > 0, True, what)


if __name__ == "__main__":
    unittest.main()
