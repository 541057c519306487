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
    <message id="shared.mode.controlUnavailable">
        <translation>Control unavailable</translation>
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
    <message id="menuBar.item.temperature">
        <extracomment>%1: whole degrees, or --; in the menu bar, as short as can be</extracomment>
        <translation>%1°C</translation>
    </message>
    <message id="menuBar.item.fanSpeed">
        <extracomment>%1: revolutions per minute, or --; in the menu bar, as short as can be</extracomment>
        <translation>%1 rpm</translation>
    </message>
    <message id="menuBar.waitingForSensors">
        <translation>Waiting for the sensors…</translation>
    </message>
    <message id="menuBar.temperature.cpu">
        <translation>CPU</translation>
    </message>
    <message id="menuBar.temperature.gpu">
        <translation>GPU</translation>
    </message>
    <message id="menuBar.temperature.degrees">
        <extracomment>%1: whole degrees, or --</extracomment>
        <translation>%1°C</translation>
    </message>
    <message id="menuBar.temperature.spoken">
        <extracomment>spoken; %1: CPU or GPU, %2: the temperature</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="menuBar.fan.parked">
        <extracomment>a fan that stands still because the Mac needs no air</extracomment>
        <translation>Parked</translation>
    </message>
    <message id="menuBar.fan.rpmUnit">
        <translation>RPM</translation>
    </message>
    <message id="menuBar.fan.spoken">
        <extracomment>spoken; %1: the fan, %2: its speed, or that it is parked</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message id="menuBar.fan.spokenSpeed">
        <extracomment>spoken; %1: whole number, or --</extracomment>
        <translation>%1 revolutions per minute</translation>
    </message>
    <message id="menuBar.preset.caption">
        <translation>Preset</translation>
    </message>
    <message id="menuBar.boost.caption">
        <translation>Quick Boost</translation>
    </message>
    <message id="menuBar.boost.percent">
        <extracomment>%1: 0 to 100</extracomment>
        <translation>%1%</translation>
    </message>
    <message id="menuBar.helperMissing.title">
        <translation>Fan control is off</translation>
    </message>
    <message id="menuBar.helperMissing.body">
        <translation>Presets and the quick boost need the helper, which is installed once from the main window.</translation>
    </message>
    <message id="menuBar.openSettingsButton">
        <translation>Set Up Fan Control…</translation>
    </message>
    <message id="menuBar.openApplicationButton">
        <translation>Open Kestrowind</translation>
    </message>
    <message id="menuBar.quitButton">
        <translation>Quit Kestrowind</translation>
    </message>
    <message id="menuBar.quitButton.help">
        <translation>Hands the fans back to the Mac and quits</translation>
    </message>
</context>
</TS>
