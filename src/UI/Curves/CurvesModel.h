#pragma once

#include "Core/FanPreset.h"
#include "Core/OneLine.h"
#include "UI/CurveEditor/FanCurveChartModel.h"
#include "UI/DesignSystem/Choice.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QObject>
#include <QQuickItem>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <functional>
#include <optional>

namespace kestrowind {

class AppState;
class CurveEditHistory;

/// The curves screen: which preset is shown, and every edit of its curve. One curve drives every
/// fan: an edit takes the preset's first curve and writes it back once for each fan.
///
/// While a point is dragged, its steps are in `draftPreset` alone, and so are its nudges until none
/// has come for a while: a drag or a row of nudges is stored once, and is one edit to undo. All
/// other edits are stored and pushed to the fans at once. Belongs to the main thread.
class CurvesModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasPreset READ hasPreset NOTIFY presetChanged FINAL)
    Q_PROPERTY(QString presetName READ presetName NOTIFY presetChanged FINAL)
    Q_PROPERTY(QString presetSymbolName READ presetSymbolName NOTIFY presetChanged FINAL)
    Q_PROPERTY(bool isBuiltIn READ isBuiltIn NOTIFY presetChanged FINAL)
    Q_PROPERTY(QString builtInNote READ builtInNote NOTIFY presetChanged FINAL)
    Q_PROPERTY(QString chartHelp READ chartHelp NOTIFY presetChanged FINAL)
    Q_PROPERTY(bool canAddPreset READ canAddPreset NOTIFY presetChanged FINAL)
    Q_PROPERTY(QString customizeHelp READ customizeHelp NOTIFY presetChanged FINAL)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY presetChanged FINAL)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY presetChanged FINAL)
    Q_PROPERTY(QString undoHelp READ undoHelp CONSTANT FINAL)
    Q_PROPERTY(QString redoHelp READ redoHelp CONSTANT FINAL)
    Q_PROPERTY(kestrowind::RowList* userPresets READ userPresets CONSTANT FINAL)
    Q_PROPERTY(kestrowind::RowList* builtInPresets READ builtInPresets CONSTANT FINAL)
    Q_PROPERTY(kestrowind::FanCurveChartModel* chart READ chart CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// Nudges of one point that follow each other within this time are one edit.
    static constexpr std::chrono::milliseconds nudgePause{1000};

    /// State and history must outlive the model; the history is that of the whole run of the
    /// application.
    CurvesModel(AppState& appState, CurveEditHistory& history,
                std::chrono::milliseconds pause = nudgePause);
    /// Stores the nudges that are not stored yet.
    ~CurvesModel() override;

    /// The preset chosen here if it exists, else the active one, else the first user preset, else
    /// the first preset.
    [[nodiscard]] std::optional<FanPreset> selectedPreset() const;
    [[nodiscard]] const std::optional<QUuid>& selectedPresetID() const {
        return m_selectedPresetID;
    }
    void setSelectedPresetID(const std::optional<QUuid>& id);
    /// The preset in the middle of a drag or of nudges; nothing of it is stored.
    [[nodiscard]] const std::optional<FanPreset>& draftPreset() const { return m_draftPreset; }
    /// The draft, else the selected one.
    [[nodiscard]] std::optional<FanPreset> shownPreset() const;

    [[nodiscard]] bool hasPreset() const { return shownPreset().has_value(); }
    [[nodiscard]] QString presetName() const { return oneLine(shown().name); }
    [[nodiscard]] QString presetSymbolName() const { return shown().symbolName; }
    [[nodiscard]] bool isBuiltIn() const { return shown().isBuiltIn; }
    [[nodiscard]] QString builtInNote() const;
    [[nodiscard]] QString chartHelp() const;
    [[nodiscard]] bool canAddPreset() const;
    /// Why there can be no copy; empty when there can.
    [[nodiscard]] QString customizeHelp() const;
    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const;
    /// The command with its keys as the platform writes them.
    [[nodiscard]] static QString undoHelp();
    [[nodiscard]] static QString redoHelp();
    [[nodiscard]] ChoiceList* userPresets() { return &m_userPresets; }
    [[nodiscard]] ChoiceList* builtInPresets() { return &m_builtInPresets; }
    [[nodiscard]] FanCurveChartModel* chart() { return &m_chart; }

    /// Ignored for what is no preset's slot.
    Q_INVOKABLE void select(const QString& slotID);
    /// Adds a preset under a name that no other has, and selects it. It is not activated.
    Q_INVOKABLE void createPreset();
    /// Selects an editable copy of the displayed built-in.
    Q_INVOKABLE void duplicateForEditing();
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();

    /// The item that shows the model; without one the model counts as seen.
    Q_INVOKABLE void setView(QQuickItem* view);

Q_SIGNALS:
    /// The preset that is shown, or what can be done with it, is another.
    void presetChanged();

private:
    void movePoint(int index, const FanCurvePoint& to, bool isFinal);
    void nudgePoint(int index, const FanCurvePoint& to);
    void storeNudges();
    void addPoint(const FanCurvePoint& point);
    void deletePoint(int index);
    void forgetDraft();

    /// What is shown with another curve, once for each fan; absent when it cannot be edited.
    [[nodiscard]] std::optional<FanPreset> edited(const std::function<void(FanCurve&)>& edit) const;
    [[nodiscard]] FanPreset shown() const { return shownPreset().value_or(FanPreset()); }
    [[nodiscard]] qsizetype fanCount() const;
    [[nodiscard]] QString newPresetName() const;
    /// Stores an edit and asks for a push.
    void commit(const FanPreset& edited);
    void setDraft(const std::optional<FanPreset>& draft);
    void storeAndPush(const FanPreset& preset);
    void refresh();
    void refreshChoices();
    void refreshTelemetry();

    AppState& m_appState;
    CurveEditHistory& m_history;
    std::optional<QUuid> m_selectedPresetID;
    std::optional<FanPreset> m_draftPreset;
    QUuid m_chartedPresetID; ///< the one whose curve the chart has
    ChoiceList m_userPresets;
    ChoiceList m_builtInPresets;
    FanCurveChartModel m_chart;
    /// The point whose nudges are in the draft; -1 for none.
    int m_nudgedPoint = -1;
    QTimer m_nudges; ///< runs until they are stored
    VisibilityWatch m_visibility;
};

} // namespace kestrowind
