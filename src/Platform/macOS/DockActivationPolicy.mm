#include "Platform/macOS/DockActivationPolicy.h"

#import <AppKit/AppKit.h>

namespace kestrowind {

ActivationPolicy::Policy DockActivationPolicy::policy() const {
    return NSApp.activationPolicy == NSApplicationActivationPolicyRegular ? Policy::regular
                                                                          : Policy::accessory;
}

void DockActivationPolicy::setPolicy(Policy policy) {
    [NSApp setActivationPolicy:policy == Policy::regular ? NSApplicationActivationPolicyRegular
                                                         : NSApplicationActivationPolicyAccessory];
}

void DockActivationPolicy::activate() {
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace kestrowind
