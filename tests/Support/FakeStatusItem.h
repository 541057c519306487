#pragma once

#include "Platform/Notifications.h"
#include "UI/MenuBar/StatusItem.h"

#include <QStringList>

namespace kestrowind {

/// An item that the test gives a place and works; it keeps what it was told.
class FakeStatusItem final : public StatusItem {
public:
    bool hasPlace = true; ///< found when it is next looked for
    int looks = 0;        ///< ahead of their time
    QStringList toolTips, messages;
    QIcon picture;
    std::function<void()> pictured = [] {}; ///< called with each picture

    void choose(const QString& title) const {
        for (const Command& command : m_commands) {
            if (command.title == title)
                command.run();
        }
    }

    void start() override { look(); }
    void lookNow() override {
        ++looks;
        look();
    }
    [[nodiscard]] bool isPlaced() const override { return m_isPlaced; }
    [[nodiscard]] Style style() const override { return Style::square; }
    [[nodiscard]] QRect geometry() const override { return {300, 0, 22, 22}; }
    void setCommands(const QList<Command>& commands) override { m_commands = commands; }
    void setPicture(const QIcon& newPicture, const QString& toolTip) override {
        picture = newPicture;
        toolTips.append(toolTip);
        pictured();
    }
    void showMessage(const kestrowind::Notification& message) override {
        messages.append(message.title);
    }

private:
    void look() {
        if (!hasPlace || m_isPlaced)
            return;
        m_isPlaced = true;
        Q_EMIT placed();
    }

    bool m_isPlaced = false;
    QList<Command> m_commands;
};

} // namespace kestrowind
