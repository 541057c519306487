#pragma once

#include "UI/DesignSystem/MessageTone.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class AppState;

/// One line that says what the fans are doing: the control state's status, else what the active
/// preset does.
class CaptionModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text NOTIFY lineChanged FINAL)
    Q_PROPERTY(QString symbolName READ symbolName NOTIFY lineChanged FINAL)
    Q_PROPERTY(kestrowind::MessageTone::Tone tone READ tone NOTIFY lineChanged FINAL)
    Q_PROPERTY(bool isInProgress READ isInProgress NOTIFY lineChanged FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made by the main window")

public:
    struct Line {
        QString text = {};
        QString symbolName = {}; ///< empty: no icon
        MessageTone::Tone tone = MessageTone::Tone::Neutral;
        bool isInProgress = false; ///< a spinning mark in place of the icon

        bool operator==(const Line&) const = default;
    };

    explicit CaptionModel(AppState& appState, QObject* parent = nullptr);

    [[nodiscard]] const Line& line() const { return m_line; }
    [[nodiscard]] QString text() const { return m_line.text; }
    [[nodiscard]] QString symbolName() const { return m_line.symbolName; }
    [[nodiscard]] MessageTone::Tone tone() const { return m_line.tone; }
    [[nodiscard]] bool isInProgress() const { return m_line.isInProgress; }

Q_SIGNALS:
    void lineChanged();

private:
    void update();

    AppState& m_appState;
    Line m_line;
};

} // namespace kestrowind
