<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="preset.builtIn.cool.name">
        <translation>Cool</translation>
    </message>
    <message id="preset.builtIn.fullSpeed.name">
        <translation>Full Speed</translation>
    </message>
    <message id="presets.duplicate.name">
        <extracomment>%1: name of the preset that was duplicated</extracomment>
        <translation>%1 Copy</translation>
    </message>
    <message id="presets.card.automaticCaption">
        <translation>The Mac controls its fans itself</translation>
    </message>
    <message id="presets.card.coolCaption">
        <translation>Spins up early to keep the Mac cool</translation>
    </message>
    <message id="presets.card.fullSpeedCaption">
        <translation>Every fan at its highest speed</translation>
    </message>
    <message id="presets.card.builtInCurveCaption">
        <translation>Built-in curve</translation>
    </message>
    <message id="presets.card.customCurveCaption">
        <translation>Your own curve</translation>
    </message>
    <message id="curves.newPresetName.base">
        <translation>New Preset</translation>
    </message>
    <message id="curves.newPresetName.numbered">
        <extracomment>%1: 2, 3, ...</extracomment>
        <translation>New Preset %1</translation>
    </message>
    <message id="mainWindow.section.dashboard">
        <translation>Dashboard</translation>
    </message>
    <message id="mainWindow.section.curves">
        <translation>Curves</translation>
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
    <message id="mainWindow.presetBar.label">
        <translation>Presets</translation>
    </message>
    <message id="mainWindow.presetBar.morePresets">
        <translation>More presets</translation>
    </message>
    <message id="mainWindow.presetBar.helperMissing">
        <translation>The helper is not installed</translation>
    </message>
    <message id="mainWindow.presetBar.hardwareFailure">
        <translation>The fans could not be controlled</translation>
    </message>
    <message id="shared.fan.left">
        <translation>Left fan</translation>
    </message>
    <message id="shared.fan.right">
        <translation>Right fan</translation>
    </message>
    <message id="shared.fan.numbered">
        <extracomment>%1: the fan's number, from 1</extracomment>
        <translation>Fan %1</translation>
    </message>
    <message id="shared.mode.automatic">
        <translation>Automatic</translation>
    </message>
    <message id="app.window.mainTitle">
        <translation>Kestrowind</translation>
    </message>
    <message id="shared.mode.startingBoost">
        <translation>Taking control of the fans…</translation>
    </message>
    <message id="shared.mode.boosting">
        <translation>Boosting</translation>
    </message>
    <message id="settings.helper.error.adminScriptFailed">
        <extracomment>%1: what the script runner said</extracomment>
        <translation>The administrator script failed: %1</translation>
    </message>
    <message id="settings.helper.error.resourcesMissing">
        <translation>The application is incomplete: its helper is missing from the bundle.</translation>
    </message>
</context>
</TS>
