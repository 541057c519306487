#pragma once

#include "UI/MenuBar/StatusItem.h"

#include <memory>

namespace kestrowind {

/// An item of the system's menu bar. Its picture is drawn as large as it is, so that the texts have
/// the size that they were given, and every press of a button is a click of its own, however soon
/// it follows the one before.
class MenuBarStatusItem final : public StatusItem {
    Q_OBJECT

public:
    MenuBarStatusItem();
    ~MenuBarStatusItem() override;

    /// The menu bar is there before any application is.
    void start() override;
    void lookNow() override {}
    [[nodiscard]] bool isPlaced() const override;
    [[nodiscard]] Style style() const override { return Style::templateLabel; }
    [[nodiscard]] QRect geometry() const override;
    /// Items of a Mac's menu bar have no menu beside what a click opens.
    void setCommands(const QList<Command>& /*commands*/) override {}
    void setPicture(const QIcon& picture, const QString& toolTip) override;
    /// The system's notifications are the only ones.
    void showMessage(const kestrowind::Notification& /*message*/) override {}

private:
    struct Item;
    std::unique_ptr<Item> m_item;
};

} // namespace kestrowind
