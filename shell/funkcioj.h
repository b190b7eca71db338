#ifndef FUNKCIOJ_H
#define FUNKCIOJ_H

// Process-wide state of the course and the free functions that the
// subsystems share. The globals are plain variables on purpose: every part of
// the program reads them directly, and all of it runs on the GUI thread.
//
// Each function lives in the folder of its subsystem:
//   shell/funkcioj.cpp            the globals, the folders, the draw
//   shell/arbo.cpp                finding widgets in the window's tree
//   lessons/trenado.cpp           scrolling a page by dragging
//   input/literoj.cpp             letter systems, cleaning of typed answers
//   media/sonoj.cpp               sound-file names, the player
//   media/parolado.cpp            notes, spoken feedback, the verdict box, pauses
//   translation/tradukado.cpp     relabelling of a lesson, the translation file
//   translation/lingvovicoj.cpp   language rows
//   written/respondoj.cpp         saved answers of the written pages
//   written/sendado.cpp           hand-in
//   written/presado.cpp           printing of a lesson
//   exercises/ekzercdatumoj.cpp   exercise data, the limit of a run
//   exercises/poentaro.cpp        the score row and the items of a new run
//   exercises/blinko.cpp          the blink of a right answer

#include <QHash>
#include <QString>
#include <functional>
#include <QStringList>
#include <QList>
#include <QPair>
#include <QVector>

class QObject;
class QSpinBox;
class QWidget;
class QLabel;
class QTabWidget;
class QProgressBar;
class QScrollArea;
class QSettings;

// File-name endings of every sound and every video file.
static const QString mp3_finajho = QStringLiteral(".oga");
static const QString video_finajho = QStringLiteral(".ogv");

// The lessons of the course, numbered from 1; the last is the final exam.
constexpr int KiomDaLecionoj = 13;

// Locations, filled once by main().
extern QString sSistemo;    // "linux", "windows", "osx", "android", "ios"
extern QString Loko;        // ":/", root of the compiled resources
extern QString mrLoko;      // media folder, ends in "/"
extern QString savasLoko;   // writable folder, ends in "/"

// Resume point.
extern int LastaLeciono;
extern int LastaPagxo;

// Blinking of a right answer: interval in ms and length in seconds.
extern int Ofteco;
extern int NumSec;
// Milliseconds in one second of waiting (Pauzu, the blink): tests shorten it.
extern int iMsEnSekundo;

// The language in use.
extern QString sLingvo;
extern QString sLingvoID;
extern QString sTradukoDosiero;
extern QString sTradukoDato;
extern QString sTradukinto;
extern QString Direkto;

// Settings.
extern QString sTiparo;
extern QString sTiparoEo;
extern int iLiterGrando;
extern int iLiterGrandoEo;
extern int iSistemo;
extern int iFenestraStilo;
extern int iLastaFojo;
extern bool lCxapeligo;
extern bool lSxaltilo;
extern bool lNoteto;
extern bool lKorektanto;
extern QString sKorNomo;
extern QString sKorAdreso;
extern bool NeEkzistasTraduko;
extern bool Tradukilo;
extern QString EkzercoAkuzativoTrad;

// Addresses of the course's web server (plain HTTP) and of the outside site
// that tells what Esperanto is, fixed when the program is built.
extern QString sServilo;
extern QString sEksteraRetejo;

// Messages and button words of the current translation.
extern QString smRekomencu, smGratulon, smDenove, smModifis, smTondujo,
    smDevasHaviKor, smDevasSavi, smKoverto, smDisketo, smPordo, smLigilo,
    smNeSono, Antauen, Nuligi;

// Makes the area scroll when its page is dragged, as on a touch screen. A
// press still reaches the widget under it at once, so a word speaks when
// pressed; a drag that starts on a word silences it.
void ebligasTrenon(QScrollArea* rulumo);

// Folder of kind "multrimedoj" (media) or "skribebla" (writable) on sSistemo.
QString kiuSistemo(QString kiu);

// Letter systems: 0 as it is, 1 Unicode to x system, 2 Unicode to h system,
// 3 x system to Unicode.
QString CxSist(QString teksto, int sistemo);

// Sound files of a lesson's words and phrases, relative to the media folder.
// A word is named by its x-system spelling, "aux" (the word aŭ) by "auh"
// where `auh` is asked for; a phrase by the number of the clickable word that
// shows it. `ciferoj` are the lesson's two digits.
QString vortoSono(const QString& ciferoj, const QString& vorto, bool auh);
QString frazoSono(const QString& ciferoj, const QString& numero);
// A row of a listening or pronunciation exercise: a positive number names
// the phrase of that clickable word, anything else is a word.
QString ekzercaSono(const QString& ciferoj, const QString& vico, bool auh);
// The reading text of the player named LecNN_name: sonoj/lecNN/name.
QString legoSono(const QString& ludilo);

// Plays a sound file given relative to the media folder, through the main
// window's one player. Silent while another window is active.
void mp3(QString dosiero);

// Cleans a typed answer for comparison: runs of blanks made one, ends
// trimmed, full stops and commas removed, and lower case if asked.
QString purigas(QString teksto, bool minuskle);

// A font size in points, scaled so that it looks the same on every screen.
int ghustigas_tiparon(int grando);

// Spoken feedback. Noteto: the note for right (true) or wrong (false).
// Jes/Ne: note, pause, spoken praise or refusal. Mesagxo: the verdict box at
// the end of an exercise, wrong answers first. Pauzu: waits whole seconds
// with the window alive.
void Noteto(bool ghuste);
void Jes();
void Ne();
void Mesagxo(int eraroj, int sukcesoj);
void Pauzu(int sekundoj);
void Sinkronigu();

// Address of a help page: "kio" what Esperanto is, anything else how to use
// the course, both in the current language.
QString helpdosiero(QString kiu);

// A label of a lesson that a translator writes: its key in the group named
// by the lesson's tab widget, and its place in reading order.
struct TradukendaEtikedo
{
    int numero;
    QString shlosilo;
    QLabel* etikedo;
};
// The labels of a tab widget that a translator writes, tab by tab: each one
// whose name holds the group name and "_", and the instruction "Ekz_Plen2" of
// a gap exercise; never a panel or memo, nor an Esperanto word or model
// answer, which relabelling leaves as they are. The count of places goes on
// over a label whose key comes out empty, and that label is not listed.
QVector<TradukendaEtikedo> tradukendajEtikedoj(QTabWidget* langetoj);

// Relabels one lesson from the current translation file: every label by
// its object name, the arrows and alignments by the file's direction.
void Trad(QWidget* radiko, QString grupo);
// The translation file to read: the one in the writable folder where the
// name is safe and the file is there, otherwise the one in the resources.
QString legotaTraduko();
// The key of a gap exercise's instruction label Ekz_Plen2 in its lesson's
// group: the lesson's second gap exercise (its frame has a "B" after the
// lesson number) has a key of its own.
QString instrukciaShlosilo(const QObject* etikedo);
// The labels whose text is common to all exercises of a kind, each with its
// key in the group Gheneralaj, in the order of that group.
const QVector<QPair<QString, QString>>& gheneralajEtikedoj();

// The settings file, lernilomelo.ini in the writable folder.
QString agordoVojo();

// A language as a row of texts: LingvoID, Lingvo, file name, Dato. From
// group `grupo` of the language list (LingvoID "??" where it has none), or
// from the header of a translation file in the resources.
QStringList listaVico(QSettings& listo, int grupo);
QStringList dosieraVico(const QString& nomo, const QString& datoDefaulto);

// Groups of an INI file read as UTF-8, each key to its value as QSettings
// gives it as text, without parsing the groups that are not wanted. A group
// that is missing is missing from the result.
QHash<QString, QHash<QString, QString>> legasGrupojn(const QString& vojo, const QStringList& grupoj);
// The header group [Traduko] of a language file.
QHash<QString, QString> legasKapon(const QString& vojo);

// A translation file name from a language list or the settings that may be
// used inside the writable folder: letters, digits, "_" and "-", then ".trd".
// So no folder part, and never the settings file or another program's file.
bool sekuraDosierNomo(const QString& nomo);

// The learner's written answers of a lesson: loaded into the fields of its
// "Sendas" pages (false) or stored from them (true), in lernilomelo.ini.
void SxargxasEk(QTabWidget* langetoj, bool savas);
// The same store, looking for the written pages at any depth.
void SavasEk(QTabWidget* langetoj);

// Exercise data. _Matriz reads one column of an exercise as plain strings
// (column "T" comes from the translation in use, group "Ekzerco-" + id);
// _Matriz2 reads one as rows split at "~", each padded to `largho` fields.
// Both empty the list first and return the number of keys found.
int _Matriz(QStringList* lista, QString id, QString tipo);
int _Matriz2(QList<QStringList>* lista, QString id, QString tipo, int largho);
// The folder of the files ekzNN.dat, ending in "/": the resources; the fuzz
// target of the readers points it at a folder of its own.
extern QString sEkzercujo;
// The most items one run of some exercises takes: n, but at most 40.
int limigo(int n);
// The start of a run: the score row shows the target and three zeros.
void nulasPoentaron(QSpinBox* restantaj, QSpinBox* ghustaj, QSpinBox* eraraj, QSpinBox* procento, int celo);
// The items of a run, none answered right yet.
QList<bool> neniuUzita(int kiom);
// Makes a widget blink for NumSec seconds to point at a right answer; the
// window stays alive meanwhile.
void tekstoblinko(QWidget* w);
// The rhythm of every blink: calls `pasho` with 1, 2, 3... every Ofteco ms
// for NumSec seconds, the window alive meanwhile; odd steps show the mark.
void blinkas(const std::function<void(int pasho)>& pasho);

// Hand-in: the text of a written page (questions, answers and the other
// labels, in the learner's letter system), put on the clipboard with a
// message. `numero` counts pages from 1. The page's own button leaves the
// model answers and the Esperanto words out, and sets every label without a
// question apart by blank lines; the footer's path takes every label.
void Sendas(QWidget* pagho, int numero);
QString SendasTeksto(QTabWidget* langetoj, QWidget* pagho, int numero, const QString& leciono, bool propraButono);
void KopiasPorSendi(const QString& teksto);

// Prints the pages of a lesson but its exercises, two to a sheet.
void Sendas_Printilo(QTabWidget* langetoj, QString titolo, QProgressBar* progreso);

// The farewell, spoken when the program ends.
void Adiau();

// The nearest ancestor of `objekto` whose class is named `klaso`, or null.
QWidget* praulo(const QObject* objekto, const char* klaso);
// The lesson's tab widget on a page of the main window, or null.
QTabWidget* lecionLangetoj(const QWidget* pagho);

// A draw from 0 to n-1; 0 for n = 0.
int random(int n);
void randomize();

#endif
