#include "UI/MenuBar/macOS/MenuBarStatusItem.h"

#import <AppKit/AppKit.h>

#include <QImage>
#include <QPixmap>

using kestrowind::StatusItem;

@interface KestrowindStatusItemTarget : NSObject
- (instancetype)initWithItem:(StatusItem&)item;
- (void)pressed:(id)sender;
@end

@implementation KestrowindStatusItemTarget {
    StatusItem* _item;
}

- (instancetype)initWithItem:(StatusItem&)item {
    if ((self = [super init]))
        _item = &item;
    return self;
}

- (void)pressed:(id)sender {
    Q_EMIT _item->clicked();
}

@end

namespace kestrowind {
namespace {

NSImage* templateImage(const QIcon& icon) {
    const QList<QSize> sizes = icon.availableSizes();
    if (sizes.isEmpty())
        return nil;
    // The only one, at the scale of the sharpest screen.
    const QImage picture = icon.pixmap(sizes.constFirst()).toImage();
    const QSizeF points = picture.deviceIndependentSize();
    CGImageRef pixels = picture.toCGImage();
    NSImage* image = [[NSImage alloc] initWithCGImage:pixels
                                                 size:NSMakeSize(points.width(), points.height())];
    CGImageRelease(pixels);
    [image setTemplate:YES];
    return image;
}

} // namespace

struct MenuBarStatusItem::Item {
    NSStatusItem* item = nil; ///< once it is placed
    KestrowindStatusItemTarget* target = nil;
};

std::unique_ptr<StatusItem> makeStatusItem() {
    return std::make_unique<MenuBarStatusItem>();
}

MenuBarStatusItem::MenuBarStatusItem()
    : m_item(std::make_unique<Item>()) {}

MenuBarStatusItem::~MenuBarStatusItem() {
    if (m_item->item)
        [NSStatusBar.systemStatusBar removeStatusItem:m_item->item];
}

void MenuBarStatusItem::start() {
    m_item->item = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
    m_item->target = [[KestrowindStatusItemTarget alloc] initWithItem:*this];
    NSStatusBarButton* button = m_item->item.button;
    button.imageScaling = NSImageScaleNone;
    button.target = m_item->target;
    button.action = @selector(pressed:);
    [button sendActionOn:NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown];
    Q_EMIT placed();
}

bool MenuBarStatusItem::isPlaced() const {
    return m_item->item != nil;
}

QRect MenuBarStatusItem::geometry() const {
    NSStatusBarButton* button = m_item->item.button;
    const NSRect inWindow = [button convertRect:button.bounds toView:nil];
    const NSRect onScreen = [button.window convertRectToScreen:inWindow];
    // The system counts upwards from the lower edge of the screen with the menu bar.
    const CGFloat top = NSMaxY(NSScreen.screens.firstObject.frame) - NSMaxY(onScreen);
    return QRectF(onScreen.origin.x, top, onScreen.size.width, onScreen.size.height).toRect();
}

void MenuBarStatusItem::setPicture(const QIcon& picture, const QString& toolTip) {
    m_item->item.button.image = templateImage(picture);
    m_item->item.button.toolTip = toolTip.toNSString();
    m_item->item.button.accessibilityLabel = toolTip.toNSString();
}

} // namespace kestrowind
