#include "Platform/macOS/ProcessActivity.h"

#import <Foundation/Foundation.h>

namespace kestrowind {

struct ProcessActivity::Token {
    id<NSObject> activity = nil; ///< while it is under way
};

ProcessActivity::ProcessActivity()
    : m_token(std::make_unique<Token>()) {}

ProcessActivity::~ProcessActivity() {
    setUnderWay(false);
}

void ProcessActivity::setUnderWay(bool isUnderWay) {
    if (isUnderWay == (m_token->activity != nil))
        return;
    NSProcessInfo* process = NSProcessInfo.processInfo;
    if (isUnderWay) {
        m_token->activity =
            [process beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                                       reason:@"driving the fans"];
    } else {
        [process endActivity:m_token->activity];
        m_token->activity = nil;
    }
}

} // namespace kestrowind
