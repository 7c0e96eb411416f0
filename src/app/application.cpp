#include "app/application.h"

#include <QIcon>
#include <new>

#include "platform/guard.h"
#include "shell/images.h"

namespace bornika {

namespace {

constexpr int memoireEpuisee = 7;
constexpr int erreurInterne = 51;

}  // namespace

bool Application::notify(QObject* receveur, QEvent* evenement) {
    try {
        return QApplication::notify(receveur, evenement);
    } catch (const FauteExecution& faute) {
        SignalerFaute(faute);
    } catch (const std::bad_alloc&) {
        SignalerFaute(FauteExecution(memoireEpuisee, QStringLiteral("Out of memory")));
    } catch (const std::exception& autre) {
        SignalerFaute(FauteExecution(erreurInterne, QString::fromLocal8Bit(autre.what())));
    }
    return false;
}

void PreparerApplication() {
    InitialiserImages();
    QCoreApplication::setApplicationName(QStringLiteral("BORNIKA"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/images/icon.png")));
}

}  // namespace bornika
