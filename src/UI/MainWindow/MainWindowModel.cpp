#include "UI/MainWindow/MainWindowModel.h"

#include "Core/AssignIfChanged.h"

namespace kestrowind {

MainWindowModel::MainWindowModel(AppState& appState, MainSection section)
    : m_section(section)
    , m_pills(appState)
    , m_caption(appState) {
    QList<Choice> choices;
    for (const MainSection each : mainSections)
        choices.append(sectionChoice(each));
    m_sections.setRows(choices);
}

void MainWindowModel::setSection(MainSection section) {
    if (assignIfChanged(m_section, section))
        Q_EMIT sectionChanged();
}

void MainWindowModel::selectSection(int index) {
    if (index >= 0 && index < m_sections.count())
        setSection(mainSections.at(static_cast<std::size_t>(index)));
}

} // namespace kestrowind
