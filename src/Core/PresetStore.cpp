#include "Core/PresetStore.h"

#include "Core/AssignIfChanged.h"
#include "Core/CanonicalUuid.h"
#include "Core/LocalizedText.h"
#include "Core/Logging.h"
#include "Core/PresetCoding.h"
#include "Platform/DurableFile.h"
#include "Platform/UserDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace kestrowind {
namespace {

using namespace Qt::StringLiterals;

const QString activePresetKey = u"activePresetID"_s;
const QString slotOrderKey = u"presetSlotOrder"_s;

// Of what somebody else wrote. Every preset and every slot is a pill, a card and a line of a menu,
// every point a handle: thousands of them would hold up the readings, and with them the fans.
constexpr qsizetype mostReadPresets = 100;
constexpr qsizetype mostReadSlots = 2 * mostReadPresets;
constexpr qsizetype mostReadPoints = 1000; ///< of a curve

bool canBeShown(const QList<FanPreset>& presets) {
    return presets.size() <= mostReadPresets &&
           std::ranges::all_of(presets, [](const FanPreset& preset) {
               return std::ranges::all_of(preset.curves, [](const FanCurve& curve) {
                   return curve.points().size() <= mostReadPoints;
               });
           });
}

} // namespace

PresetStore::PresetStore(int fanCount, UserDefaults& userDefaults, const Storage& storage)
    : m_userDefaults(userDefaults)
    , m_persistsSlotOrder(storage.persistsSlotOrder)
    , m_fanCount(std::max(fanCount, 1))
    , m_filePath(storage.folder + u"/presets.json"_s) {
    m_presets = FanPreset::builtIns(m_fanCount) + loadUserPresets();
    m_slotOrder = reconciledSlotOrder(m_presets, savedSlotOrder());
    restoreActivePreset();
}

PresetStore::~PresetStore() = default;

QList<FanPreset> PresetStore::loadUserPresets() {
    // A dangling link is something too; a file that is simply not there is a first start.
    const QFileInfo info(m_filePath);
    if (!info.exists() && !info.isSymLink())
        return {};
    const auto unreadable = [this](const QString& reason) {
        qCDebug(presetsLog).noquote() << "cannot read" << m_filePath << reason;
        m_hasUnreadableFile = true;
        return QList<FanPreset>();
    };
    const auto content = DurableFile::read(m_filePath, largestPresetsFile);
    if (!content)
        return unreadable(content.error());
    auto presets = decodePresets(*content);
    if (!presets)
        return unreadable(presets.error());
    if (!canBeShown(*presets))
        return unreadable(u"more presets or points than can be shown"_s);
    presets->removeIf([](const FanPreset& preset) { return preset.isBuiltIn; });
    return *presets;
}

QList<PresetSlot> PresetStore::savedSlotOrder() const {
    QList<PresetSlot> order;
    if (!m_persistsSlotOrder)
        return order;
    QStringList ids = m_userDefaults.stringArray(slotOrderKey).value_or(QStringList());
    if (ids.size() > mostReadSlots)
        ids.resize(mostReadSlots);
    for (const QString& id : std::as_const(ids)) {
        if (const auto slot = PresetSlot::fromId(id))
            order.append(*slot);
    }
    return order;
}

void PresetStore::restoreActivePreset() {
    const auto saved = m_userDefaults.string(activePresetKey);
    const auto id = saved ? parseUuid(*saved) : std::nullopt;
    if (id && preset(*id))
        setActivePresetID(id);
    qCInfo(presetsLog).noquote().nospace()
        << "loaded: saved=" << saved.value_or(u"none"_s)
        << " active=" << (m_activePresetID ? uuidText(*m_activePresetID) : u"none"_s)
        << " presets=" << m_presets.size();
}

std::optional<FanPreset> PresetStore::preset(const QUuid& id) const {
    const auto found = std::ranges::find(m_presets, id, &FanPreset::id);
    return found == m_presets.end() ? std::nullopt : std::optional(*found);
}

std::optional<FanPreset> PresetStore::activePreset() const {
    return m_activePresetID ? preset(*m_activePresetID) : std::nullopt;
}

QList<FanPreset> PresetStore::userPresets() const {
    QList<FanPreset> user = m_presets;
    user.removeIf([](const FanPreset& preset) { return preset.isBuiltIn; });
    return user;
}

bool PresetStore::canAddPreset() const {
    return userPresets().size() < maximumUserPresets;
}

void PresetStore::setActivePresetID(const std::optional<QUuid>& id) {
    const bool didChange = assignIfChanged(m_activePresetID, id);
    if (m_persistsActiveSelection) {
        if (id)
            m_userDefaults.setString(activePresetKey, uuidText(*id));
        else
            m_userDefaults.remove(activePresetKey);
    }
    if (didChange)
        Q_EMIT activePresetIDChanged();
}

void PresetStore::activateForSessionOnly(const std::optional<QUuid>& id) {
    m_persistsActiveSelection = false;
    setActivePresetID(id);
    m_persistsActiveSelection = true;
}

std::optional<FanPreset> PresetStore::addPreset(const QString& name) {
    return append({.id = {},
                   .name = name,
                   .symbolName = u"fanblades"_s,
                   .curves = QList<FanCurve>(m_fanCount, FanPreset::newPresetCurve())});
}

std::optional<FanPreset> PresetStore::duplicate(const FanPreset& source) {
    FanPreset copy = source;
    copy.name = localized("presets.duplicate.name").arg(source.name);
    return append(std::move(copy));
}

std::optional<FanPreset> PresetStore::adopt(FanPreset preset) {
    while (std::ranges::find(m_presets, preset.name, &FanPreset::name) != m_presets.end())
        preset.name = localized("presets.duplicate.name").arg(preset.name);
    return append(std::move(preset));
}

std::optional<FanPreset> PresetStore::append(FanPreset preset) {
    if (!canAddPreset())
        return std::nullopt;
    preset.id = QUuid::createUuid();
    preset.isBuiltIn = false;
    m_presets.append(preset);
    reconcileSlots();
    save();
    Q_EMIT presetsChanged();
    return preset;
}

void PresetStore::update(const FanPreset& updated) {
    const auto stored = std::ranges::find(m_presets, updated.id, &FanPreset::id);
    if (stored == m_presets.end() || stored->isBuiltIn)
        return;
    const bool didChange = assignIfChanged(*stored, updated);
    save();
    if (didChange)
        Q_EMIT presetsChanged();
}

void PresetStore::remove(const FanPreset& removed) {
    if (removed.isBuiltIn)
        return;
    const auto count =
        m_presets.removeIf([&](const FanPreset& preset) { return preset.id == removed.id; });
    if (m_activePresetID == removed.id)
        setActivePresetID(std::nullopt);
    reconcileSlots();
    save();
    if (count > 0)
        Q_EMIT presetsChanged();
}

void PresetStore::moveSlot(const PresetSlot& slot, const PresetSlot& onto) {
    if (!assignIfChanged(m_slotOrder, slotOrder(m_slotOrder, slot, onto)))
        return;
    persistSlotOrder();
    Q_EMIT slotOrderChanged();
}

void PresetStore::reconcileSlots() {
    const bool didChange =
        assignIfChanged(m_slotOrder, reconciledSlotOrder(m_presets, m_slotOrder));
    persistSlotOrder();
    if (didChange)
        Q_EMIT slotOrderChanged();
}

void PresetStore::persistSlotOrder() {
    if (!m_persistsSlotOrder)
        return;
    QStringList ids;
    for (const PresetSlot& slot : m_slotOrder)
        ids.append(slot.id());
    m_userDefaults.setStringArray(slotOrderKey, ids);
}

void PresetStore::save() {
    const auto notSaved = [](const QString& reason) {
        qCWarning(presetsLog).noquote() << "presets not saved:" << reason;
    };
    const auto content = encodePresets(userPresets());
    if (!content)
        return notSaved(content.error());
    // The next start would take it for none of ours, and all presets with it.
    if (content->size() > largestPresetsFile)
        return notSaved(u"%1 bytes are too many"_s.arg(content->size()));
    const QFileInfo file(m_filePath);
    if (!QDir().mkpath(file.absolutePath()))
        return notSaved(u"cannot make "_s + file.absolutePath());
    if (m_hasUnreadableFile) {
        const auto kept = DurableFile::setAside(m_filePath, file.fileName() + u".unreadable"_s);
        if (!kept)
            return notSaved(u"cannot set the old file aside: "_s + kept.error());
        qCInfo(presetsLog) << "kept the unreadable presets as" << *kept;
        m_hasUnreadableFile = false;
    }
    if (const auto written = DurableFile::write(m_filePath, *content); !written)
        notSaved(written.error());
}

QList<PresetSlot> PresetStore::reconciledSlotOrder(const QList<FanPreset>& presets,
                                                   const QList<PresetSlot>& savedOrder) {
    QList<PresetSlot> canonical{PresetSlot::automatic()};
    for (const FanPreset& preset : presets)
        canonical.append(PresetSlot::preset(preset.id));

    const QSet<PresetSlot> existing(canonical.begin(), canonical.end());
    QList<PresetSlot> order = savedOrder;
    order.removeIf([&](const PresetSlot& slot) { return !existing.contains(slot); });
    const QSet<PresetSlot> kept(order.begin(), order.end());
    canonical.removeIf([&](const PresetSlot& slot) { return kept.contains(slot); });
    return order + canonical;
}

QList<PresetSlot> PresetStore::slotOrder(QList<PresetSlot> order, const PresetSlot& moving,
                                         const PresetSlot& onto) {
    const qsizetype from = order.indexOf(moving);
    const qsizetype to = order.indexOf(onto);
    if (from >= 0 && to >= 0 && from != to)
        order.move(from, to);
    return order;
}

} // namespace kestrowind
