#pragma once

#include "Platform/ApplicationObject.h"

#include <QCoreApplication>

namespace kestrowind {

/// Where the system knows no application objects the event loop stands for one: nothing opens a
/// running application again, and to end is to leave the loop.
class EventLoopApplication final : public ApplicationObject {
public:
    void setDelegate(ApplicationDelegate& delegate) override { m_delegate = &delegate; }
    void terminate() override {
        if (!m_delegate ||
            m_delegate->applicationShouldTerminate() == ApplicationDelegate::TerminateReply::now)
            QCoreApplication::exit();
    }
    void replyToShouldTerminate() override { QCoreApplication::exit(); }

private:
    ApplicationDelegate* m_delegate = nullptr;
};

} // namespace kestrowind
