#include "UI/DesignSystem/LateScene.h"

#include "UI/DesignSystem/SceneAppearance.h"

namespace kestrowind {

using namespace Qt::StringLiterals;

LateScene::LateScene(Setup setup)
    : m_setup(std::move(setup)) {
    m_releaseTimer.setSingleShot(true);
    m_releaseTimer.setInterval(m_setup.releaseDelay);
    connect(&m_releaseTimer, &QTimer::timeout, this, &LateScene::release);
}

LateScene::~LateScene() {
    // Nobody shall find it any more while it goes.
    m_view.reset();
}

QQuickView& LateScene::make(std::optional<ColorScheme> forcedScheme) {
    m_engine = std::make_unique<QQmlEngine>();
    m_engine->addImportPath(u"qrc:/qt/qml"_s);
    SceneAppearance& appearance = SceneAppearance::of(*m_engine);
    appearance.setSystemAppearance(m_setup.systemAppearance);
    appearance.setForcedScheme(forcedScheme);
    m_view = std::make_unique<QQuickView>(m_engine.get(), nullptr);
    connect(&appearance, &SceneAppearance::colorSchemeChanged, this, &LateScene::paintBackground);
    paintBackground();
    connect(m_view.get(), &QWindow::visibleChanged, &m_releaseTimer,
            [this](bool isVisible) { isVisible ? m_releaseTimer.stop() : m_releaseTimer.start(); });
    return *m_view;
}

void LateScene::load(const QUrl& source, QObject& model) {
    // Without a parent it would be the engine's to collect.
    QQmlEngine::setObjectOwnership(&model, QQmlEngine::CppOwnership);
    m_view->setInitialProperties({{u"model"_s, QVariant::fromValue(&model)}});
    m_view->setSource(source);
    if (m_view->status() != QQuickView::Ready)
        qFatal("a window cannot be made of %s", qPrintable(source.toString()));
}

void LateScene::paintBackground() {
    m_view->setColor(m_setup.background(SceneAppearance::of(*m_engine).colorScheme()));
}

void LateScene::release() {
    Q_EMIT aboutToRelease();
    m_view.reset();
    m_engine.reset();
    Q_EMIT released();
}

} // namespace kestrowind
