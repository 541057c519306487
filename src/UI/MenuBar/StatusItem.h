#pragma once

#include <QIcon>
#include <QList>
#include <QObject>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>

namespace kestrowind {

struct Notification;

/// The application's item in the desktop's menu bar or tray. Belongs to the main thread.
class StatusItem : public QObject {
    Q_OBJECT

public:
    enum class Style {
        templateLabel, ///< two lines of text that the menu bar colours for every state
        square,        ///< for trays with small square icons, coloured by the scheme
    };
    struct Command {
        QString title;
        std::function<void()> run;
    };

    using QObject::QObject;

    /// Looks for a place on the desktop, and waits for one where there is none. `placed` follows
    /// once there is, perhaps before this returns.
    virtual void start() = 0;
    /// Brings the next look forward, where there is still one to come.
    virtual void lookNow() = 0;
    [[nodiscard]] virtual bool isPlaced() const = 0;

    /// What pictures it takes.
    [[nodiscard]] virtual Style style() const = 0;
    /// Points on the desktop; empty where that does not say it.
    [[nodiscard]] virtual QRect geometry() const = 0;

    /// From `placed` on. The commands, each apart from the next, are for a desktop whose items have
    /// a menu beside what a click opens.
    virtual void setCommands(const QList<Command>& commands) = 0;
    virtual void setPicture(const QIcon& picture, const QString& toolTip) = 0;
    /// A balloon beside the item; nothing as long as it has no place.
    virtual void showMessage(const kestrowind::Notification& message) = 0;

Q_SIGNALS:
    /// There is a place, and the item is shown in it from now on. Once.
    void placed();
    /// Neither a request for the menu nor a double click.
    void clicked();
    void menuRequested();
    void messageClicked();
};

using StatusItemFactory = std::function<std::unique_ptr<StatusItem>()>;

/// The item of the desktop that the application runs on. Needs a QApplication.
[[nodiscard]] std::unique_ptr<StatusItem> makeStatusItem();

} // namespace kestrowind
