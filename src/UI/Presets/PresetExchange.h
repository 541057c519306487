#pragma once

#include "Core/FanPreset.h"
#include "UI/DesignSystem/FailureNotice.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class FileDialogs;
class PresetStore;

/// Presets to and from files of their own. Belongs to the main thread.
class PresetExchange final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::FailureNotice* failure READ failure CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("belongs to PresetsModel")

public:
    /// Both must outlive this.
    PresetExchange(PresetStore& presets, FileDialogs& fileDialogs);

    /// Asks where to, and writes the preset as it is by then. Slots are named by their text
    /// identifiers; what names no preset is ignored.
    Q_INVOKABLE void exportPreset(const QString& slotID);
    /// Asks which file, and adds its preset. Whatever is wrong with the file changes nothing.
    Q_INVOKABLE void importPreset();

    /// Why a file could not be written or read.
    [[nodiscard]] FailureNotice* failure() { return &m_failure; }

Q_SIGNALS:
    void imported(const kestrowind::FanPreset& preset);

private:
    /// False when it failed, which was told.
    bool write(const QString& path, const FanPreset& preset);
    bool read(const QString& path);

    PresetStore& m_presets;
    FileDialogs& m_fileDialogs;
    FailureNotice m_failure;
};

} // namespace kestrowind
