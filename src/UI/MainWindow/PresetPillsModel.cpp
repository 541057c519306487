#include "UI/MainWindow/PresetPillsModel.h"

#include "Core/AppState.h"
#include "Core/AssignIfChanged.h"
#include "Core/PresetControlState.h"

#include <algorithm>

namespace kestrowind {
PresetPillsModel::PresetPillsModel(AppState& appState, QObject* parent)
    : QObject(parent)
    , m_appState(appState) {
    const PresetStore& presets = appState.presets();
    connect(&presets, &PresetStore::presetsChanged, this, &PresetPillsModel::updatePills);
    connect(&presets, &PresetStore::slotOrderChanged, this, &PresetPillsModel::updatePills);
    connect(&presets, &PresetStore::activePresetIDChanged, this, &PresetPillsModel::updatePills);
    connect(&appState.control(), &ControlState::changed, this, &PresetPillsModel::hindranceChanged);
}

void PresetPillsModel::setAvailableWidth(double width) {
    if (!assignIfChanged(m_availableWidth, width))
        return;
    Q_EMIT availableWidthChanged();
    updatePills();
}

void PresetPillsModel::activateShown(int row) {
    activate(m_shown, row);
}

void PresetPillsModel::activateOverflow(int row) {
    activate(m_overflow, row);
}

void PresetPillsModel::updatePills() {
    if (!(m_availableWidth > 0))
        return;
    const PresetStore& presets = m_appState.presets();
    const QList<PresetPill> pills =
        PresetPills::pills(presets.slotOrder(), presets.presets(), presets.activePresetID());
    QList<double> widths;
    for (const PresetPill& pill : pills)
        widths.append(pill.width);
    const PresetPills::Row row = PresetPills::fittingRow(widths, m_availableWidth);

    m_shown.setPills(pills.first(row.count));
    m_overflow.setPills(pills.sliced(row.count));
    if (assignIfChanged(m_rowWidth, row.width))
        Q_EMIT rowWidthChanged();
    const auto active = std::ranges::find(m_shown.pills(), true, &PresetPill::isActive);
    const auto activeRow = active == m_shown.pills().end() ? 0 : active - m_shown.pills().begin();
    if (assignIfChanged(m_activeRow, static_cast<int>(activeRow)))
        Q_EMIT activeRowChanged();
    if (assignIfChanged(m_isActiveInOverflow,
                        std::ranges::any_of(m_overflow.pills(), &PresetPill::isActive)))
        Q_EMIT isActiveInOverflowChanged();
}

QString PresetPillsModel::hindrance() const {
    const PresetControlState state = ActivePresetState::current(m_appState);
    return state.kind == PresetControlState::Kind::switchable ? QString()
                                                              : state.status->text.string();
}

void PresetPillsModel::activate(const PillListModel& list, int row) {
    if (!isSwitchable() || row < 0 || row >= list.count())
        return;
    // A copy: the activation changes the list.
    const PresetSlot slot = list.pills().at(row).slot;
    m_appState.presets().setActivePresetID(slot.presetID());
    m_appState.engine().pushSoon();
}

} // namespace kestrowind
