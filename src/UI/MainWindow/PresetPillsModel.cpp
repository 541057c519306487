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

    m_shown.setRows(pills.first(row.count));
    m_overflow.setRows(PresetPills::choices(pills.sliced(row.count)));
    if (assignIfChanged(m_rowWidth, row.width))
        Q_EMIT rowWidthChanged();
    if (assignIfChanged(m_activeRow, std::max(m_shown.find(true, &PresetPill::isActive), 0)))
        Q_EMIT activeRowChanged();
    if (assignIfChanged(m_isActiveInOverflow, m_overflow.find(true, &Choice::isChosen) >= 0))
        Q_EMIT isActiveInOverflowChanged();
}

QString PresetPillsModel::hindrance() const {
    const PresetControlState state = ActivePresetState::current(m_appState);
    return state.kind == PresetControlState::Kind::switchable ? QString()
                                                              : state.status->text.string();
}

void PresetPillsModel::activate(const QString& slotID) {
    if (isSwitchable())
        m_appState.activate(slotID);
}

} // namespace kestrowind
