#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace kestrowind {

/// Asks the user which file to write or read. Belongs to the main thread.
///
/// A dialog begins where the last one worked, as long as that folder can be listed at once, so that
/// none hangs with a drive that is gone. It belongs to the window that has the keyboard. It goes
/// when its owner goes, and nothing is called when it is cancelled. While one is open, asking again
/// does nothing.
class FileDialogs {
public:
    /// Takes the file that the user chose, with its full path. False when nothing came of it: the
    /// next dialog then does not begin there.
    using Chosen = std::function<bool(const QString& path)>;

    struct Kind {
        QString name;   ///< for people: "CSV table"
        QString suffix; ///< without its dot
    };

    FileDialogs() = default;
    FileDialogs(const FileDialogs&) = delete;
    FileDialogs& operator=(const FileDialogs&) = delete;
    virtual ~FileDialogs() = default;

    /// Where to write. `fileName` is what the user finds filled in: without its suffix, and of any
    /// characters. To replace a file was confirmed.
    virtual void askForSave(QObject& owner, const QString& title, const Kind& kind,
                            const QString& fileName, Chosen chosen) = 0;
    /// What to read.
    virtual void askForOpen(QObject& owner, const QString& title, const Kind& kind,
                            Chosen chosen) = 0;
};

} // namespace kestrowind
