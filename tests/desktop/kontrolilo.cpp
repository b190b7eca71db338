// Loaded into the installed program by Qt itself (lernilo-melo -plugin
// kontrolilo), it works the program as a new learner would, through the
// object names of its widgets, and prints what it found:
//
//   hejmo            the home page is shown after the first-run language choice
//   sono PATH        the greeting is a sound file of the installed sound tree
//   filmo PATH       the film of lesson 2 is found and plays for a second
//   eraro WHAT       anything that went wrong; the program then ends
//
// After the checks it closes the window from the home page, so the program
// writes its settings as at any close.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QMediaPlayer>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <cstdio>

namespace {

QWidget* supra(const char* nomo)
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->objectName() == QLatin1String(nomo))
            return w;
    return nullptr;
}

QWidget* deKlaso(QWidget* radiko, const char* klaso)
{
    for (QWidget* w : radiko->findChildren<QWidget*>())
        if (qstrcmp(w->metaObject()->className(), klaso) == 0)
            return w;
    return nullptr;
}

void diras(const QString& linio)
{
    std::printf("%s\n", qPrintable(linio));
    std::fflush(stdout);
}

// Is the file in the installed folder beside the executable?
bool instalita(const QString& vojo, const QString& ujo)
{
    const QFileInfo dosiero(vojo);
    return dosiero.isFile() && dosiero.size() > 0
        && dosiero.canonicalFilePath().startsWith(QCoreApplication::applicationDirPath() + ujo);
}

class Kontrolilo : public QObject
{
public:
    Kontrolilo()
    {
        connect(&horlogho, &QTimer::timeout, this, &Kontrolilo::pasho);
        horlogho.start(200);
        QTimer::singleShot(60000, this, [] {
            diras(QStringLiteral("eraro: no answer within a minute"));
            std::fflush(stdout);
            std::_Exit(1);
        });
    }

private:
    void pasho();
    void eraro(const QString& kio)
    {
        diras(QStringLiteral("eraro: ") + kio);
        horlogho.stop();
        std::_Exit(1);
    }

    QTimer horlogho;
    int etapo = 0;
};

void Kontrolilo::pasho()
{
    if (QWidget* elekto = supra("lingvoelekto")) {
        if (auto* bone = elekto->findChild<QAbstractButton*>(QStringLiteral("pushButton")))
            bone->click();
        return;
    }
    auto* fenestro = qobject_cast<QMainWindow*>(supra("lernilo"));
    if (!fenestro)
        return;
    auto* paghujo = fenestro->findChild<QStackedWidget*>(QStringLiteral("Paghujo"));
    if (!paghujo)
        return eraro(QStringLiteral("no page stack"));
    QMediaPlayer* ludilo = fenestro->findChild<QMediaPlayer*>(QString(), Qt::FindDirectChildrenOnly);

    switch (etapo) {
    case 0:
        if (paghujo->currentWidget()->objectName() != QLatin1String("ChefaPagho"))
            return eraro(QStringLiteral("the first page is ") + paghujo->currentWidget()->objectName());
        diras(QStringLiteral("hejmo"));
        ++etapo;
        return;
    case 1: {
        if (!ludilo || ludilo->media().isNull())
            return;   // the greeting comes once the window is shown
        const QString vojo = ludilo->media().request().url().toLocalFile();
        if (!instalita(vojo, QStringLiteral("/sonoj/")))
            return eraro(QStringLiteral("greeting not in the sound tree: ") + vojo);
        diras(QStringLiteral("sono ") + vojo);
        fenestro->findChild<QAbstractButton*>(QStringLiteral("Leciono2"))->click();
        ++etapo;
        return;
    }
    case 2: {
        QWidget* filmo = deKlaso(fenestro, "videoludilo");
        if (!filmo)
            return eraro(QStringLiteral("lesson 2 has no film"));
        // Show the page of the film, as the learner would by turning pages.
        QWidget* pagho = filmo;
        while (pagho->parentWidget() && !qobject_cast<QStackedWidget*>(pagho->parentWidget()))
            pagho = pagho->parentWidget();
        if (auto* langetoj = qobject_cast<QTabWidget*>(pagho->parentWidget()->parentWidget()))
            langetoj->setCurrentWidget(pagho);
        auto* filmludilo = filmo->findChild<QMediaPlayer*>();
        if (!filmludilo)
            return eraro(QStringLiteral("the film has no player"));
        if (filmludilo->error() != QMediaPlayer::NoError)
            return eraro(QStringLiteral("the film does not play: ") + filmludilo->errorString());
        if (filmludilo->mediaStatus() == QMediaPlayer::LoadedMedia
            && filmludilo->state() != QMediaPlayer::PlayingState)
            filmludilo->play();
        if (filmludilo->position() < 1000)
            return;   // a second of film decoded and shown
        const QString vojo = filmludilo->media().request().url().toLocalFile();
        if (!instalita(vojo, QStringLiteral("/video/")))
            return eraro(QStringLiteral("film not in the installed folder: ") + vojo);
        diras(QStringLiteral("filmo ") + vojo);
        fenestro->findChild<QAbstractButton*>(QStringLiteral("Hejmo"))->click();
        ++etapo;
        return;
    }
    default:
        if (paghujo->currentIndex() == 0) {
            horlogho.stop();
            fenestro->close();
        }
    }
}

} // namespace

class KontroliloKromajho : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "kontrolilo.json")

public:
    QObject* create(const QString&, const QString&) override { return new Kontrolilo; }
};

#include "kontrolilo.moc"
