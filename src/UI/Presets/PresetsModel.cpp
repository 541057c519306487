#include "UI/Presets/PresetsModel.h"

#include "Core/AppState.h"
#include "Core/AssignIfChanged.h"
#include "Core/LocalizedText.h"
#include "Core/OneLine.h"
#include "Core/PresetCaption.h"

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

PresetCard automaticCard(bool isActive) {
    return {.slot = PresetSlot::automatic(),
            .name = localized("shared.mode.automatic"),
            .caption = PresetCaption::text(std::nullopt),
            .symbolName = u"gearshape.arrow.trianglehead.2.clockwise.rotate.90"_s,
            .help = localized("presets.card.automaticHelp"),
            .isActive = isActive};
}

PresetCard card(const FanPreset& preset, bool isActive) {
    return {.slot = PresetSlot::preset(preset.id),
            .name = oneLine(preset.name),
            .caption = PresetCaption::text(preset),
            .symbolName = preset.symbolName,
            .curve = {preset.curves.value(0)},
            .isActive = isActive,
            .isEditable = !preset.isBuiltIn};
}

} // namespace

PresetsModel::PresetsModel(AppState& appState, FileDialogs& fileDialogs, QObject* parent)
    : QObject(parent)
    , m_appState(appState)
    , m_exchange(appState.presets(), fileDialogs)
    , m_canAddPreset(appState.presets().canAddPreset()) {
    const PresetStore& presets = appState.presets();
    connect(&presets, &PresetStore::presetsChanged, this, &PresetsModel::update);
    connect(&presets, &PresetStore::slotOrderChanged, this, &PresetsModel::update);
    connect(&presets, &PresetStore::activePresetIDChanged, this, &PresetsModel::update);
    connect(&m_exchange, &PresetExchange::imported, this, &PresetsModel::tellCreated);
    update();
}

QString PresetsModel::limitHelp() const {
    return m_canAddPreset
               ? QString()
               : localized("presets.limitReachedHelp").arg(PresetStore::maximumUserPresets);
}

void PresetsModel::update() {
    m_cards.setRows(currentCards());
    if (assignIfChanged(m_canAddPreset, m_appState.presets().canAddPreset()))
        Q_EMIT canAddPresetChanged();
    if (assignIfChanged(m_activeRow, std::max(m_cards.find(true, &PresetCard::isActive), 0)))
        Q_EMIT activeRowChanged();
}

QList<PresetCard> PresetsModel::currentCards() const {
    const PresetStore& presets = m_appState.presets();
    QList<PresetCard> cards;
    for (const PresetSlot& slot : presets.slotOrder()) {
        const bool isActive = slot.presetID() == presets.activePresetID();
        if (slot.isAutomatic())
            cards.append(automaticCard(isActive));
        else if (const auto preset = presets.preset(*slot.presetID()))
            cards.append(card(*preset, isActive));
    }
    return cards;
}

std::optional<FanPreset> PresetsModel::presetOf(const QString& slotID) const {
    const auto slot = PresetSlot::fromId(slotID);
    return slot && !slot->isAutomatic() ? m_appState.presets().preset(*slot->presetID())
                                        : std::nullopt;
}

void PresetsModel::setAvailableWidth(double width) {
    if (!assignIfChanged(m_availableWidth, width))
        return;
    Q_EMIT availableWidthChanged();
    if (assignIfChanged(m_grid, CardGrid::fitting(width)))
        Q_EMIT gridChanged();
}

void PresetsModel::activate(const QString& slotID) {
    m_appState.activate(slotID);
}

void PresetsModel::duplicate(const QString& slotID) {
    const auto preset = presetOf(slotID);
    if (!preset)
        return;
    if (const auto copy = m_appState.presets().duplicate(*preset))
        tellCreated(*copy);
}

void PresetsModel::createPreset() {
    const auto created = m_appState.presets().addPreset(localized("presets.newPresetDefaultName"));
    if (!created)
        return;
    tellCreated(*created);
    beginRenaming(*created);
}

void PresetsModel::tellCreated(const FanPreset& created) {
    const int row = m_cards.find(PresetSlot::preset(created.id));
    if (row >= 0)
        Q_EMIT cardCreated(row);
}

bool PresetsModel::drop(const QString& text, const QString& ontoSlotID) {
    const auto slot = PresetSlot::fromId(text);
    const auto onto = PresetSlot::fromId(ontoSlotID);
    if (!slot || !onto)
        return false;
    m_appState.presets().moveSlot(*slot, *onto);
    return true;
}

void PresetsModel::moveBy(int row, int places) {
    const qsizetype onto = row + places;
    const auto count = m_cards.rows().size();
    if (row < 0 || row >= count || onto < 0 || onto >= count)
        return;
    // Copies: the move changes the list.
    const PresetSlot slot = m_cards.rows().at(row).slot;
    const PresetSlot target = m_cards.rows().at(onto).slot;
    m_appState.presets().moveSlot(slot, target);
}

void PresetsModel::rename(const QString& slotID) {
    const auto preset = presetOf(slotID);
    if (preset && !preset->isBuiltIn)
        beginRenaming(*preset);
}

void PresetsModel::beginRenaming(const FanPreset& preset) {
    setRenameDraftName(preset.name);
    if (assignIfChanged(m_presetBeingRenamed, preset.id))
        Q_EMIT renamingChanged();
}

void PresetsModel::setRenameDraftName(const QString& name) {
    if (assignIfChanged(m_renameDraftName, name))
        Q_EMIT renameDraftNameChanged();
}

void PresetsModel::commitRename() {
    if (!m_presetBeingRenamed)
        return;
    const QString name = m_renameDraftName.trimmed();
    // The stored one: something else of it may have changed since the dialog was opened.
    auto preset = m_appState.presets().preset(*m_presetBeingRenamed);
    if (preset && !name.isEmpty()) {
        preset->name = name;
        m_appState.presets().update(*preset);
    }
    cancelRename();
}

void PresetsModel::cancelRename() {
    if (assignIfChanged(m_presetBeingRenamed, std::nullopt))
        Q_EMIT renamingChanged();
}

void PresetsModel::requestDeletion(const QString& slotID) {
    const auto preset = presetOf(slotID);
    if (!preset || preset->isBuiltIn)
        return;
    setPendingDeletion(preset);
}

QString PresetsModel::deletionTitle() const {
    return m_presetPendingDeletion
               ? localized("presets.delete.titleNamed").arg(quotable(m_presetPendingDeletion->name))
               : localized("presets.delete.titleFallback");
}

void PresetsModel::confirmDeletion() {
    if (!m_presetPendingDeletion)
        return;
    const FanPreset preset = *m_presetPendingDeletion;
    cancelDeletion();
    m_appState.presets().remove(preset);
}

void PresetsModel::cancelDeletion() {
    setPendingDeletion(std::nullopt);
}

void PresetsModel::setPendingDeletion(const std::optional<FanPreset>& preset) {
    if (!assignIfChanged(m_presetPendingDeletion, preset))
        return;
    Q_EMIT deletionTitleChanged();
    Q_EMIT deletingChanged();
}

} // namespace kestrowind
