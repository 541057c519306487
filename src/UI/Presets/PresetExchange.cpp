#include "UI/Presets/PresetExchange.h"

#include "Core/LocalizedText.h"
#include "Core/OneLine.h"
#include "Core/PresetFile.h"
#include "Core/PresetStore.h"
#include "Platform/DurableFile.h"
#include "Platform/FileDialogs.h"

#include <QFileInfo>

namespace kestrowind {
namespace {

FileDialogs::Kind presetFiles() {
    return {.name = localized("presets.file.kind"),
            .suffix = QString::fromLatin1(PresetFile::suffix)};
}

QString titleOf(const char* key, const QString& path) {
    return localized(key).arg(quotable(QFileInfo(path).fileName()));
}

} // namespace

PresetExchange::PresetExchange(PresetStore& presets, FileDialogs& fileDialogs)
    : m_presets(presets)
    , m_fileDialogs(fileDialogs) {}

void PresetExchange::exportPreset(const QString& slotID) {
    const auto slot = PresetSlot::fromId(slotID);
    const auto id = slot ? slot->presetID() : std::nullopt;
    const auto preset = id ? m_presets.preset(*id) : std::nullopt;
    if (!preset)
        return;
    m_fileDialogs.askForSave(*this, localized("presets.export.title"), presetFiles(), preset->name,
                             [this, before = *preset](const QString& path) {
                                 // It may have gone meanwhile: then as it was.
                                 return write(path, m_presets.preset(before.id).value_or(before));
                             });
}

void PresetExchange::importPreset() {
    m_fileDialogs.askForOpen(*this, localized("presets.import.title"), presetFiles(),
                             [this](const QString& path) { return read(path); });
}

bool PresetExchange::write(const QString& path, const FanPreset& preset) {
    const auto fail = [&](const QString& reason) {
        m_failure.show(titleOf("presets.export.failed", path), reason);
        return false;
    };
    const auto content = PresetFile::encode(preset);
    if (!content)
        return fail(content.error());
    if (const auto written = DurableFile::write(path, *content); !written)
        return fail(written.error());
    return true;
}

bool PresetExchange::read(const QString& path) {
    const auto fail = [&](const QString& reason) {
        m_failure.show(titleOf("presets.import.failed", path), reason);
        return false;
    };
    const auto preset = PresetFile::read(path);
    if (!preset)
        return fail(preset.error());
    const auto added = m_presets.adopt(*preset);
    if (!added)
        return fail(localized("presets.limitReachedHelp").arg(PresetStore::maximumUserPresets));
    Q_EMIT imported(*added);
    return true;
}

} // namespace kestrowind
