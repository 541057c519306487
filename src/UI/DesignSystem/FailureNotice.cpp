#include "UI/DesignSystem/FailureNotice.h"

namespace kestrowind {

void FailureNotice::show(const QString& title, const QString& message) {
    m_title = title;
    m_message = message;
    Q_EMIT textChanged();
    m_isShown = true;
    Q_EMIT isShownChanged();
}

void FailureNotice::dismiss() {
    if (!m_isShown)
        return;
    m_isShown = false;
    Q_EMIT isShownChanged();
}

} // namespace kestrowind
