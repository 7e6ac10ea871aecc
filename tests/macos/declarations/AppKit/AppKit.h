#pragma once

// See CoreFoundation/CoreFoundation.h.

#include <Foundation/Foundation.h>

extern "C" {
extern NSString* const NSWorkspaceWillSleepNotification;
extern NSString* const NSWorkspaceDidWakeNotification;
}

@interface NSWorkspace : NSObject
+ (NSWorkspace*)sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
- (BOOL)openURL:(NSURL*)url;
@end

@interface NSApplication : NSObject
+ (NSApplication*)sharedApplication;
- (void)activateIgnoringOtherApps:(BOOL)ignoresOthers;
@end

@interface NSImage : NSObject
- (instancetype)initWithContentsOfFile:(NSString*)path;
@property NSSize size;
- (void)setTemplate:(BOOL)isTemplate;
@end

@interface NSFont : NSObject
+ (NSFont*)menuBarFontOfSize:(CGFloat)points;
@end

@interface NSMenu : NSObject
@property BOOL autoenablesItems;
- (void)addItem:(id)item;
@end

@interface NSMenuItem : NSObject
+ (NSMenuItem*)separatorItem;
@property(copy) NSString* title;
@property(getter=isEnabled) BOOL enabled;
@property(getter=isHidden) BOOL hidden;
@property NSInteger tag;
@property(weak) id target;
@property SEL action;
@property(strong) NSMenu* submenu;
@end

enum NSCellImagePosition : NSUInteger { NSImageLeading = 7 };

@interface NSStatusBarButton : NSObject
@property(copy) NSString* title;
@property(strong) NSImage* image;
@property NSCellImagePosition imagePosition;
@property(strong) NSFont* font;
@property(copy) NSString* toolTip;
@end

@interface NSStatusItem : NSObject
@property(readonly, strong) NSStatusBarButton* button;
@property(strong) NSMenu* menu;
@end

@interface NSStatusBar : NSObject
+ (NSStatusBar*)systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
