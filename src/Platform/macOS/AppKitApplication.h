#pragma once

#include "Platform/ApplicationObject.h"

#include <memory>

namespace kestrowind {

/// NSApp, whose delegate is the toolkit's: ours stands before it, answers the two questions of
/// ApplicationDelegate, and passes everything else on.
class AppKitApplication final : public ApplicationObject {
public:
    AppKitApplication();
    ~AppKitApplication() override;

    void setDelegate(ApplicationDelegate& delegate) override;
    void whenLaunched(const std::function<void(bool isLoginItem)>& launched) override;
    void terminate() override;
    void replyToShouldTerminate() override;

private:
    struct Joint;
    std::unique_ptr<Joint> m_joint;                   ///< NSApp does not keep its delegate
    std::function<void(bool isLoginItem)> m_launched; ///< until it was called
};

} // namespace kestrowind
