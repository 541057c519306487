#pragma once

#include "Platform/FileDialogs.h"

#include <QPointer>

#include <utility>

namespace kestrowind {

/// Dialogs that the test answers.
class FakeFileDialogs final : public FileDialogs {
public:
    enum class Purpose { none, save, open };

    Purpose asked = Purpose::none; ///< of the dialog that is open
    Kind kind;
    QString fileName;

    void askForSave(QObject& owner, const QString& /*title*/, const Kind& newKind,
                    const QString& newFileName, Chosen chosen) override {
        fileName = newFileName;
        ask(Purpose::save, owner, newKind, std::move(chosen));
    }
    void askForOpen(QObject& owner, const QString& /*title*/, const Kind& newKind,
                    Chosen chosen) override {
        ask(Purpose::open, owner, newKind, std::move(chosen));
    }

    /// Whether it worked; nothing happens once the owner is gone.
    bool answer(const QString& path) {
        asked = Purpose::none;
        return m_owner && std::exchange(m_chosen, {})(path);
    }

private:
    void ask(Purpose purpose, QObject& owner, const Kind& newKind, Chosen chosen) {
        asked = purpose;
        kind = newKind;
        m_owner = &owner;
        m_chosen = std::move(chosen);
    }

    QPointer<QObject> m_owner;
    Chosen m_chosen;
};

} // namespace kestrowind
