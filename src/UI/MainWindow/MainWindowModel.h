#pragma once

#include "UI/MainWindow/CaptionModel.h"
#include "UI/MainWindow/MainSection.h"
#include "UI/MainWindow/PresetPillsModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

/// What the frame of the main window shows and the commands that it takes.
class MainWindowModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::RowList* sections READ sections CONSTANT FINAL)
    Q_PROPERTY(int sectionIndex READ sectionIndex NOTIFY sectionChanged FINAL)
    Q_PROPERTY(kestrowind::PresetPillsModel* pills READ pills CONSTANT FINAL)
    Q_PROPERTY(kestrowind::CaptionModel* caption READ caption CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made by the main window")

public:
    MainWindowModel(AppState& appState, MainSection section);

    [[nodiscard]] ChoiceList* sections() { return &m_sections; }
    [[nodiscard]] MainSection section() const { return m_section; }
    void setSection(MainSection section);
    [[nodiscard]] int sectionIndex() const { return static_cast<int>(m_section); }
    [[nodiscard]] PresetPillsModel* pills() { return &m_pills; }
    [[nodiscard]] CaptionModel* caption() { return &m_caption; }

    /// Ignored for what is no section's index.
    Q_INVOKABLE void selectSection(int index);

Q_SIGNALS:
    void sectionChanged();
    /// The user wants the window closed, or the application ended.
    void closeRequested();
    void quitRequested();

private:
    ChoiceList m_sections;
    MainSection m_section;
    PresetPillsModel m_pills;
    CaptionModel m_caption;
};

} // namespace kestrowind
