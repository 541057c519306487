<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="alert.fanStandsStill.body">
        <extracomment>%1: revolutions per minute</extracomment>
        <translation>It should be turning at %1 rpm. If it does not start again, let the Mac cool down and have the fan looked at.</translation>
    </message>
    <message id="alert.fanStandsStill.title">
        <extracomment>%1: the fan’s name</extracomment>
        <translation>%1 stands still</translation>
    </message>
    <message id="alert.helperFailed.body">
        <translation>The helper does not do what it is asked. Reinstall it in Kestrowind’s settings. If the fans stay slow while the Mac is hot, restart the Mac.</translation>
    </message>
    <message id="alert.helperFailed.bodyWithReason">
        <extracomment>%1: what the helper said</extracomment>
        <translation>The helper cannot drive the fans: %1</translation>
    </message>
    <message id="alert.helperFailed.title">
        <translation>The fans cannot be controlled</translation>
    </message>
    <message id="alert.overheating.body">
        <extracomment>%1: whole degrees</extracomment>
        <translation>The hottest sensor has been above 100 °C for ten seconds. It is at %1 °C now.</translation>
    </message>
    <message id="alert.overheating.title">
        <translation>The Mac is very hot</translation>
    </message>
    <message id="app.window.mainTitle">
        <translation>Kestrowind</translation>
    </message>
    <message id="curves.builtInNote">
        <extracomment>%1: name of the built-in preset</extracomment>
        <translation>“%1” is built in and cannot be changed. Customize it to get a copy of your own.</translation>
    </message>
    <message id="curves.caption.safety">
        <translation>Whatever the curve says, the helper keeps each fan above a minimum that rises with the temperature.</translation>
    </message>
    <message id="curves.chart.addPoint">
        <translation>Add Point</translation>
    </message>
    <message id="curves.chart.axisDegrees">
        <extracomment>%1: whole degrees Celsius</extracomment>
        <translation>%1 °C</translation>
    </message>
    <message id="curves.chart.axisPercent">
        <extracomment>%1: 0 to 100</extracomment>
        <translation>%1%</translation>
    </message>
    <message id="curves.chart.boost">
        <extracomment>At a dashed line in the plot. %1: percent</extracomment>
        <translation>Quick boost %1%</translation>
    </message>
    <message id="curves.chart.callout.automaticSpeed">
        <extracomment>%1: whole degrees Celsius, %2: whole percent; the fan is left to the Mac</extracomment>
        <translation>%1 °C · %2% · automatic speed</translation>
    </message>
    <message id="curves.chart.callout.estimatedRPM">
        <extracomment>%1: whole degrees Celsius, %2: whole percent, %3: revolutions per minute</extracomment>
        <translation>%1 °C · %2% · about %3 rpm</translation>
    </message>
    <message id="curves.chart.callout.temperatureAndPercent">
        <extracomment>%1: whole degrees Celsius, %2: whole percent</extracomment>
        <translation>%1 °C · %2%</translation>
    </message>
    <message id="curves.chart.deletePoint">
        <translation>Delete Point</translation>
    </message>
    <message id="curves.chart.editableHelp">
        <translation>Drag a point to move it, click to add one, double-click a point to delete it. By keyboard: arrow keys move, Page Up and Page Down choose, N adds, Delete removes.</translation>
    </message>
    <message id="curves.chart.label">
        <extracomment>Spoken</extracomment>
        <translation>Fan curve</translation>
    </message>
    <message id="curves.chart.lowerTemperature">
        <translation>1 °C Cooler</translation>
    </message>
    <message id="curves.chart.operatingPoint">
        <extracomment>Beside the dot where the curve is at the temperature now. %1: percent, %2: revolutions per minute</extracomment>
        <translation>%1% · about %2 rpm</translation>
    </message>
    <message id="curves.chart.pointAccessibilityLabel">
        <extracomment>Spoken; %1: number of the point, from 1</extracomment>
        <translation>Point %1</translation>
    </message>
    <message id="curves.chart.pointAccessibilityValue">
        <extracomment>Spoken; %1: whole degrees Celsius, %2: whole percent</extracomment>
        <translation>%1 °C, %2 percent</translation>
    </message>
    <message id="curves.chart.raiseTemperature">
        <translation>1 °C Warmer</translation>
    </message>
    <message id="curves.chart.readOnlyHelp">
        <translation>The curve of a built-in preset cannot be changed. Customize it to get a copy of your own.</translation>
    </message>
    <message id="curves.chart.safetyFloor">
        <extracomment>In the shaded region that the helper does not let the fans go below</extracomment>
        <translation>Safety floor</translation>
    </message>
    <message id="curves.customizeButton">
        <translation>Customize</translation>
    </message>
    <message id="curves.emptyState.createPreset">
        <translation>Create Preset</translation>
    </message>
    <message id="curves.emptyState.description">
        <translation>Create a preset to draw how fast the fans run at each temperature.</translation>
    </message>
    <message id="curves.emptyState.title">
        <translation>No Presets</translation>
    </message>
    <message id="curves.hint.howToEdit">
        <translation>Drag points to shape the curve, click to add one, double-click to delete one. Changes are saved at once. While its preset is active, the curve drives every fan.</translation>
    </message>
    <message id="curves.newPresetName.base">
        <translation>New Preset</translation>
    </message>
    <message id="curves.newPresetName.numbered">
        <extracomment>%1: 2, 3, ...</extracomment>
        <translation>New Preset %1</translation>
    </message>
    <message id="curves.redo">
        <translation>Redo</translation>
    </message>
    <message id="curves.redoHelp">
        <extracomment>%1: the keys</extracomment>
        <translation>Redo (%1)</translation>
    </message>
    <message id="curves.selector.editing">
        <extracomment>Before the preset whose curve is shown</extracomment>
        <translation>Editing</translation>
    </message>
    <message id="curves.toolbar.builtInSection">
        <translation>Built-In</translation>
    </message>
    <message id="curves.toolbar.newPreset">
        <translation>New Preset</translation>
    </message>
    <message id="curves.toolbar.presetPickerLabel">
        <translation>Preset</translation>
    </message>
    <message id="curves.toolbar.yourPresetsSection">
        <translation>Your Presets</translation>
    </message>
    <message id="curves.undo">
        <translation>Undo</translation>
    </message>
    <message id="curves.undoHelp">
        <extracomment>%1: the keys</extracomment>
        <translation>Undo (%1)</translation>
    </message>
    <message id="dashboard.chart.axisDegrees">
        <extracomment>%1: whole degrees Celsius</extracomment>
        <translation>%1 °C</translation>
    </message>
    <message id="dashboard.chart.axisMinutesAgo">
        <extracomment>%1: minutes before now</extracomment>
        <translation>%1 min ago</translation>
    </message>
    <message id="dashboard.chart.axisSecondsAgo">
        <extracomment>%1: seconds before now</extracomment>
        <translation>%1 s ago</translation>
    </message>
    <message id="dashboard.chart.cpuMaxLegend">
        <translation>CPU hottest core</translation>
    </message>
    <message id="dashboard.chart.gpuMaxLegend">
        <translation>GPU hottest core</translation>
    </message>
    <message id="dashboard.chart.readoutCPU">
        <extracomment>%1: whole degrees Celsius</extracomment>
        <translation>CPU %1 °C</translation>
    </message>
    <message id="dashboard.chart.readoutFan">
        <extracomment>%1: the fan, %2: whole revolutions per minute</extracomment>
        <translation>%1 %2 rpm</translation>
    </message>
    <message id="dashboard.chart.readoutGPU">
        <extracomment>%1: whole degrees Celsius</extracomment>
        <translation>GPU %1 °C</translation>
    </message>
    <message id="dashboard.chart.readoutMinutesAgo">
        <extracomment>%1: whole minutes before now, %2: and seconds</extracomment>
        <translation>%1 min %2 s ago</translation>
    </message>
    <message id="dashboard.chart.readoutNow">
        <translation>Now</translation>
    </message>
    <message id="dashboard.chart.spokenCPU">
        <extracomment>%1: lowest, %2: highest, whole degrees Celsius</extracomment>
        <translation>CPU %1 to %2 °C</translation>
    </message>
    <message id="dashboard.chart.spokenFanSpeeds">
        <extracomment>%1: the time shown, such as “Last 30 minutes”, %2: lowest, %3: highest</extracomment>
        <translation>Fan speed chart. %1: %2 to %3 revolutions per minute</translation>
    </message>
    <message id="dashboard.chart.spokenGPU">
        <extracomment>%1: lowest, %2: highest, whole degrees Celsius</extracomment>
        <translation>GPU %1 to %2 °C</translation>
    </message>
    <message id="dashboard.chart.spokenTemperatures">
        <extracomment>%1: the time shown, such as “Last 30 minutes”, %2: CPU range, %3: GPU range</extracomment>
        <translation>Temperature chart. %1: %2, %3</translation>
    </message>
    <message id="dashboard.fans.differentSpeedsNote">
        <translation>It is normal for the fans to run at slightly different speeds.</translation>
    </message>
    <message id="dashboard.fans.spokenParked">
        <extracomment>%1: the fan’s name</extracomment>
        <translation>%1: parked</translation>
    </message>
    <message id="dashboard.fans.spokenSpeed">
        <extracomment>%1: the fan’s name, %2: revolutions per minute</extracomment>
        <translation>%1: %2 revolutions per minute</translation>
    </message>
    <message id="dashboard.fans.target">
        <extracomment>What the helper applies. %1: revolutions per minute</extracomment>
        <translation>Target: %1 rpm</translation>
    </message>
    <message id="dashboard.fans.title">
        <translation>Fans</translation>
    </message>
    <message id="dashboard.helperBanner.message">
        <translation>Fans can be watched, but not controlled: the helper is not installed. Install it in Settings.</translation>
    </message>
    <message id="dashboard.history.collectingSubtitle">
        <translation>The charts begin with the next few readings.</translation>
    </message>
    <message id="dashboard.history.collectingTitle">
        <translation>Collecting Data</translation>
    </message>
    <message id="dashboard.history.save.button">
        <translation>Save History…</translation>
    </message>
    <message id="dashboard.history.save.failed">
        <translation>The history could not be saved</translation>
    </message>
    <message id="dashboard.history.save.fileKind">
        <translation>CSV table</translation>
    </message>
    <message id="dashboard.history.save.fileName">
        <extracomment>%1: date and time</extracomment>
        <translation>Kestrowind %1</translation>
    </message>
    <message id="dashboard.history.save.title">
        <translation>Save History</translation>
    </message>
    <message id="dashboard.history.title">
        <translation>History</translation>
    </message>
    <message id="dashboard.history.windowFallback">
        <extracomment>Before there is any history</extracomment>
        <translation>Last 30 minutes</translation>
    </message>
    <message id="dashboard.history.windowLastMinute">
        <translation>Last minute</translation>
    </message>
    <message id="dashboard.history.windowLastMinutes">
        <extracomment>%1: 2 to 30</extracomment>
        <translation>Last %1 minutes</translation>
    </message>
    <message id="dashboard.loading.subtitle">
        <translation>Fans and temperatures appear here with the first reading.</translation>
    </message>
    <message id="dashboard.loading.title">
        <translation>Reading the sensors…</translation>
    </message>
    <message id="dashboard.temperature.averageLabel">
        <translation>Average</translation>
    </message>
    <message id="dashboard.temperature.cpuTitle">
        <translation>CPU</translation>
    </message>
    <message id="dashboard.temperature.gpuTitle">
        <translation>GPU</translation>
    </message>
    <message id="dashboard.temperature.hottestCoreCaption">
        <extracomment>%1: a formatted temperature</extracomment>
        <translation>Hottest core %1 °C</translation>
    </message>
    <message id="dashboard.temperature.sessionPeak">
        <extracomment>%1: a formatted temperature; the highest since the application was started</extracomment>
        <translation>Session peak %1 °C</translation>
    </message>
    <message id="dashboard.temperature.spoken">
        <extracomment>%1: CPU or GPU, %2: its average with unit, %3: the line of the hottest core, %4: the line of the session peak</extracomment>
        <translation>%1: average %2, %3, %4</translation>
    </message>
    <message id="dashboard.unsupported.message">
        <translation>This Mac has no fans, or its sensors cannot be read. There is nothing to show or control here.</translation>
    </message>
    <message id="dashboard.unsupported.title">
        <translation>No Fans Found</translation>
    </message>
    <message id="gauge.readout.degrees">
        <extracomment>%1: a formatted temperature</extracomment>
        <translation>%1 °C</translation>
    </message>
    <message id="gauge.readout.parked">
        <extracomment>A fan that stands still</extracomment>
        <translation>parked</translation>
    </message>
    <message id="gauge.readout.rpm">
        <translation>rpm</translation>
    </message>
    <message id="mainWindow.presetBar.hardwareFailure">
        <translation>The fans could not be controlled</translation>
    </message>
    <message id="mainWindow.presetBar.helperMissing">
        <translation>The helper is not installed</translation>
    </message>
    <message id="mainWindow.presetBar.label">
        <translation>Presets</translation>
    </message>
    <message id="mainWindow.presetBar.morePresets">
        <translation>More presets</translation>
    </message>
    <message id="mainWindow.section.curves">
        <translation>Curves</translation>
    </message>
    <message id="mainWindow.section.dashboard">
        <translation>Dashboard</translation>
    </message>
    <message id="mainWindow.section.presets">
        <translation>Presets</translation>
    </message>
    <message id="mainWindow.section.settings">
        <translation>Settings</translation>
    </message>
    <message id="mainWindow.sectionPicker.label">
        <translation>Section</translation>
    </message>
    <message id="menuBar.boost.caption">
        <translation>Quick Boost</translation>
    </message>
    <message id="menuBar.boost.percent">
        <extracomment>%1: 0 to 100</extracomment>
        <translation>%1%</translation>
    </message>
    <message id="menuBar.fan.parked">
        <extracomment>a fan that stands still because the Mac needs no air</extracomment>
        <translation>Parked</translation>
    </message>
    <message id="menuBar.fan.rpmUnit">
        <translation>rpm</translation>
    </message>
    <message id="menuBar.fan.spoken">
        <extracomment>spoken; %1: the fan, %2: its speed, or that it is parked</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="menuBar.fan.spokenSpeed">
        <extracomment>spoken; %1: whole number, or --</extracomment>
        <translation>%1 revolutions per minute</translation>
    </message>
    <message id="menuBar.helperMissing.body">
        <translation>Presets and the quick boost need the helper. Install it in the main window, under Settings.</translation>
    </message>
    <message id="menuBar.helperMissing.title">
        <translation>Fan control is off</translation>
    </message>
    <message id="menuBar.item.fanSpeed">
        <extracomment>%1: revolutions per minute, or --; in the menu bar, as short as can be</extracomment>
        <translation>%1 rpm</translation>
    </message>
    <message id="menuBar.item.temperature">
        <extracomment>%1: whole degrees, or --; in the menu bar, as short as can be</extracomment>
        <translation>%1°C</translation>
    </message>
    <message id="menuBar.openApplicationButton">
        <translation>Open Kestrowind</translation>
    </message>
    <message id="menuBar.openSettingsButton">
        <translation>Set Up Fan Control…</translation>
    </message>
    <message id="menuBar.panel.title">
        <translation>Kestrowind Quick Controls</translation>
    </message>
    <message id="menuBar.preset.caption">
        <translation>Preset</translation>
    </message>
    <message id="menuBar.quitButton">
        <translation>Quit Kestrowind</translation>
    </message>
    <message id="menuBar.quitButton.help">
        <translation>Hands the fans back to the Mac and quits</translation>
    </message>
    <message id="menuBar.temperature.cpu">
        <translation>CPU</translation>
    </message>
    <message id="menuBar.temperature.degrees">
        <extracomment>%1: whole degrees, or --</extracomment>
        <translation>%1°C</translation>
    </message>
    <message id="menuBar.temperature.gpu">
        <translation>GPU</translation>
    </message>
    <message id="menuBar.temperature.spoken">
        <extracomment>spoken; %1: CPU or GPU, %2: the temperature</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="menuBar.waitingForSensors">
        <translation>Waiting for the sensors…</translation>
    </message>
    <message id="preset.builtIn.cool.name">
        <translation>Cool</translation>
    </message>
    <message id="preset.builtIn.fullSpeed.name">
        <translation>Full Speed</translation>
    </message>
    <message id="presets.card.activeBadge">
        <translation>Active</translation>
    </message>
    <message id="presets.card.automaticCaption">
        <translation>The Mac controls its fans itself</translation>
    </message>
    <message id="presets.card.automaticHelp">
        <translation>Kestrowind leaves the fans to the Mac, except while you boost them</translation>
    </message>
    <message id="presets.card.builtInCurveCaption">
        <translation>Built-in curve</translation>
    </message>
    <message id="presets.card.coolCaption">
        <translation>Spins up early to keep the Mac cool</translation>
    </message>
    <message id="presets.card.customCurveCaption">
        <translation>Your own curve</translation>
    </message>
    <message id="presets.card.fullSpeedCaption">
        <translation>Every fan at its highest speed</translation>
    </message>
    <message id="presets.card.limitReached">
        <translation>No Room for More</translation>
    </message>
    <message id="presets.card.menuButton">
        <translation>Commands for %1</translation>
    </message>
    <message id="presets.card.newPreset">
        <translation>New Preset</translation>
    </message>
    <message id="presets.card.spokenCaption">
        <translation>%1, %2 of %3</translation>
    </message>
    <message id="presets.contextMenu.activate">
        <translation>Activate</translation>
    </message>
    <message id="presets.contextMenu.delete">
        <translation>Delete…</translation>
    </message>
    <message id="presets.contextMenu.duplicate">
        <translation>Duplicate</translation>
    </message>
    <message id="presets.contextMenu.export">
        <translation>Export…</translation>
    </message>
    <message id="presets.contextMenu.import">
        <translation>Import…</translation>
    </message>
    <message id="presets.contextMenu.new">
        <translation>New Preset</translation>
    </message>
    <message id="presets.contextMenu.rename">
        <translation>Rename…</translation>
    </message>
    <message id="presets.delete.confirm">
        <translation>Delete</translation>
    </message>
    <message id="presets.delete.message">
        <translation>This cannot be undone.</translation>
    </message>
    <message id="presets.delete.titleFallback">
        <translation>Delete this preset?</translation>
    </message>
    <message id="presets.delete.titleNamed">
        <extracomment>%1: the preset’s name</extracomment>
        <translation>Delete “%1”?</translation>
    </message>
    <message id="presets.dialog.cancel">
        <translation>Cancel</translation>
    </message>
    <message id="presets.duplicate.name">
        <extracomment>%1: name of the preset that was duplicated</extracomment>
        <translation>%1 Copy</translation>
    </message>
    <message id="presets.explainer">
        <translation>Click a card to let its preset drive the fans. Drag cards to arrange them; the row above follows their order.</translation>
    </message>
    <message id="presets.export.failed">
        <extracomment>%1: a file’s name</extracomment>
        <translation>“%1” could not be written</translation>
    </message>
    <message id="presets.export.notFinite">
        <translation>One of its curves has a point that is not a number.</translation>
    </message>
    <message id="presets.export.title">
        <translation>Export Preset</translation>
    </message>
    <message id="presets.file.kind">
        <translation>Kestrowind preset</translation>
    </message>
    <message id="presets.import.failed">
        <extracomment>%1: a file’s name</extracomment>
        <translation>“%1” could not be imported</translation>
    </message>
    <message id="presets.import.noCurve">
        <translation>The preset has no curve.</translation>
    </message>
    <message id="presets.import.noName">
        <translation>The preset has no name.</translation>
    </message>
    <message id="presets.import.noPoint">
        <translation>One of its curves has no points.</translation>
    </message>
    <message id="presets.import.notAPreset">
        <translation>It is not a preset that Kestrowind has exported.</translation>
    </message>
    <message id="presets.import.pointOutOfRange">
        <translation>A point of its curves is not between 20 and 110 °C and 0 and 100 %.</translation>
    </message>
    <message id="presets.import.pointsOutOfOrder">
        <translation>The points of its curves are not in the order of their temperatures.</translation>
    </message>
    <message id="presets.import.several">
        <translation>It holds more than one preset.</translation>
    </message>
    <message id="presets.import.title">
        <translation>Import Preset</translation>
    </message>
    <message id="presets.import.tooMuch">
        <translation>Its name or its curves are longer than any that Kestrowind makes.</translation>
    </message>
    <message id="presets.limitReachedHelp">
        <extracomment>%1: how many presets of their own users may have</extracomment>
        <translation>There can be %1 presets of your own. Delete one to make room.</translation>
    </message>
    <message id="presets.newPresetDefaultName">
        <translation>New Preset</translation>
    </message>
    <message id="presets.newPresetHelp">
        <translation>Its menu imports a preset from a file</translation>
    </message>
    <message id="presets.rename.confirm">
        <translation>Rename</translation>
    </message>
    <message id="presets.rename.fieldLabel">
        <translation>Name</translation>
    </message>
    <message id="presets.rename.title">
        <translation>Name of the Preset</translation>
    </message>
    <message id="reason.curve">
        <extracomment>%1: percent, %2: whole degrees Celsius, %3: the preset’s name</extracomment>
        <translation>%1% for %2 °C on “%3”</translation>
    </message>
    <message id="reason.notConfirmed">
        <translation>Not confirmed by the helper</translation>
    </message>
    <message id="reason.quickBoost">
        <extracomment>%1: percent</extracomment>
        <translation>Quick boost, %1%</translation>
    </message>
    <message id="reason.safetyFloor">
        <extracomment>The helper keeps the fan above what was asked for. %1: whole degrees Celsius</extracomment>
        <translation>Safety floor: %1 °C</translation>
    </message>
    <message id="reason.step.automatic">
        <translation>“Automatic” leaves the fans to the system.</translation>
    </message>
    <message id="reason.step.boost">
        <extracomment>%1: percent</extracomment>
        <translation>The quick boost asks for %1%.</translation>
    </message>
    <message id="reason.step.coolingDown">
        <extracomment>%1: measured, %2: at which the curve is read; formatted degrees Celsius</extracomment>
        <translation>Temperature: %1 °C, held at %2 °C while it cools</translation>
    </message>
    <message id="reason.step.curve">
        <extracomment>%1: the preset’s name, %2: percent</extracomment>
        <translation>“%1” asks for %2%.</translation>
    </message>
    <message id="reason.step.noDemand">
        <translation>Nothing is asked for: the system controls the fan.</translation>
    </message>
    <message id="reason.step.noHelper">
        <translation>Without the helper the system controls the fans.</translation>
    </message>
    <message id="reason.step.notApplied">
        <extracomment>%1: asked for, %2: measured, revolutions per minute</extracomment>
        <translation>%1 rpm asked for, %2 measured</translation>
    </message>
    <message id="reason.step.notConfirmed">
        <translation>The helper does not say that it applies this.</translation>
    </message>
    <message id="reason.step.safetyFloor">
        <extracomment>%1: whole degrees Celsius</extracomment>
        <translation>At %1 °C the helper keeps the fan above that.</translation>
    </message>
    <message id="reason.step.slowingDown">
        <translation>The fan is slowing down.</translation>
    </message>
    <message id="reason.step.smallerBoost">
        <extracomment>%1: percent</extracomment>
        <translation>The quick boost of %1% is less.</translation>
    </message>
    <message id="reason.step.speedingUp">
        <translation>The fan is speeding up.</translation>
    </message>
    <message id="reason.step.speeds">
        <extracomment>%1: asked for, %2: applied by the helper, %3: measured, revolutions per minute</extracomment>
        <translation>%1 rpm asked for, %2 applied, %3 measured</translation>
    </message>
    <message id="reason.step.temperature">
        <extracomment>%1: formatted degrees Celsius</extracomment>
        <translation>Temperature: %1 °C</translation>
    </message>
    <message id="reason.step.waitingForControl">
        <translation>The fans have yet to be handed over.</translation>
    </message>
    <message id="reason.system">
        <translation>System control</translation>
    </message>
    <message id="reason.waitingForControl">
        <translation>Waiting for control</translation>
    </message>
    <message id="settings.about.applicationName">
        <translation>Kestrowind</translation>
    </message>
    <message id="settings.about.helperVersionLabel">
        <translation>Helper version</translation>
    </message>
    <message id="settings.about.optimisedForCaption">
        <translation>Made for Mac computers</translation>
    </message>
    <message id="settings.about.sectionTitle">
        <translation>About</translation>
    </message>
    <message id="settings.about.versionLabel">
        <translation>Version</translation>
    </message>
    <message id="settings.fanBoost.sectionTitle">
        <translation>Fan Boost</translation>
    </message>
    <message id="settings.fanBoost.temperatureSource.average">
        <translation>Average</translation>
    </message>
    <message id="settings.fanBoost.temperatureSource.hottest">
        <translation>Hottest core</translation>
    </message>
    <message id="settings.fanBoost.temperatureSource.subtitle">
        <translation>With “Average” the fans run more evenly; “Hottest core” reacts sooner to short peaks.</translation>
    </message>
    <message id="settings.fanBoost.temperatureSource.title">
        <translation>Temperature that drives the fans</translation>
    </message>
    <message id="settings.general.hideDockIcon.subtitle">
        <translation>Kestrowind keeps running in the menu bar.</translation>
    </message>
    <message id="settings.general.hideDockIcon.title">
        <translation>Hide the Dock icon while the window is closed</translation>
    </message>
    <message id="settings.general.launchAtLogin.approvalNotice">
        <translation>Launching at login is switched off in the system's settings. Allow Kestrowind there, in General › Login Items.</translation>
    </message>
    <message id="settings.general.launchAtLogin.subtitle">
        <translation>Kestrowind starts by itself when you log in.</translation>
    </message>
    <message id="settings.general.launchAtLogin.title">
        <translation>Launch at login</translation>
    </message>
    <message id="settings.general.sectionTitle">
        <translation>General</translation>
    </message>
    <message id="settings.helper.approvalNotice">
        <translation>The helper is switched off in the system's settings. Allow Kestrowind there to run in the background, in General › Login Items.</translation>
    </message>
    <message id="settings.helper.error.adminScriptFailed">
        <extracomment>%1: what the script runner said</extracomment>
        <translation>The administrator script failed: %1</translation>
    </message>
    <message id="settings.helper.error.resourcesMissing">
        <translation>The application is incomplete: its helper is missing from the bundle.</translation>
    </message>
    <message id="settings.helper.installButton">
        <translation>Install…</translation>
    </message>
    <message id="settings.helper.outdatedNotice">
        <translation>The installed helper is not the version that this application comes with. Reinstall it to bring both together again.</translation>
    </message>
    <message id="settings.helper.reinstallButton">
        <translation>Reinstall…</translation>
    </message>
    <message id="settings.helper.reinstallHelperButton">
        <translation>Reinstall Helper…</translation>
    </message>
    <message id="settings.helper.safety.automaticRelease">
        <translation>When Kestrowind quits, crashes or stops responding, the helper gives the fans back to macOS within seconds.</translation>
    </message>
    <message id="settings.helper.safety.boostOnly">
        <translation>The helper lets no fan run slower than a safety floor, which rises with the temperature.</translation>
    </message>
    <message id="settings.helper.safety.macOSProtection">
        <translation>macOS and the hardware keep their own protection against overheating, whatever the helper does.</translation>
    </message>
    <message id="settings.helper.safety.title">
        <translation>Safe by design</translation>
    </message>
    <message id="settings.helper.sectionTitle">
        <translation>Privileged Helper</translation>
    </message>
    <message id="settings.helper.status.denied.description">
        <translation>The helper is installed, but does not do what it is asked. Reinstall it. If the fans stay slow while the Mac is hot, restart the Mac.</translation>
    </message>
    <message id="settings.helper.status.denied.title">
        <translation>The fans cannot be controlled</translation>
    </message>
    <message id="settings.helper.status.installed.description">
        <translation>Kestrowind can control the fans.</translation>
    </message>
    <message id="settings.helper.status.installed.title">
        <translation>Helper installed</translation>
    </message>
    <message id="settings.helper.status.notInstalled.description">
        <translation>Without it Kestrowind can only watch the fans. Installing takes an administrator password, once.</translation>
    </message>
    <message id="settings.helper.status.notInstalled.title">
        <translation>Helper not installed</translation>
    </message>
    <message id="settings.helper.status.unreachable.description">
        <translation>The connection to it broke. If this does not pass, reinstall the helper.</translation>
    </message>
    <message id="settings.helper.status.unreachable.title">
        <translation>Helper unreachable</translation>
    </message>
    <message id="settings.helper.uninstallButton">
        <translation>Uninstall…</translation>
    </message>
    <message id="settings.helper.unlockingCaption">
        <translation>Taking control of the fans. This can take some seconds.</translation>
    </message>
    <message id="settings.helper.workingSpinner">
        <translation>Waiting for the administrator script</translation>
    </message>
    <message id="settings.notifications.helperFailure.subtitle">
        <translation>The helper reports a failure, or does not do what it is asked.</translation>
    </message>
    <message id="settings.notifications.helperFailure.title">
        <translation>Notify when the fans cannot be controlled</translation>
    </message>
    <message id="settings.notifications.overheating.subtitle">
        <translation>The hottest sensor has been above 100 °C for ten seconds.</translation>
    </message>
    <message id="settings.notifications.overheating.title">
        <translation>Notify when the Mac is very hot</translation>
    </message>
    <message id="settings.notifications.standingFan.subtitle">
        <translation>It should be turning and has not for ten seconds.</translation>
    </message>
    <message id="settings.notifications.standingFan.title">
        <translation>Notify when a fan stands still</translation>
    </message>
    <message id="shared.dialog.ok">
        <translation>OK</translation>
    </message>
    <message id="shared.fan.left">
        <translation>Left fan</translation>
    </message>
    <message id="shared.fan.numbered">
        <extracomment>%1: the fan's number, from 1</extracomment>
        <translation>Fan %1</translation>
    </message>
    <message id="shared.fan.right">
        <translation>Right fan</translation>
    </message>
    <message id="shared.mode.automatic">
        <translation>Automatic</translation>
    </message>
    <message id="shared.mode.boosting">
        <translation>Boosting</translation>
    </message>
    <message id="shared.mode.controlUnavailable">
        <translation>Control unavailable</translation>
    </message>
    <message id="shared.mode.startingBoost">
        <translation>Taking control of the fans…</translation>
    </message>
</context>
</TS>
