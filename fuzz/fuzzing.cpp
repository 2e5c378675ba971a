#include "fuzzing.h"

#include <targetsearch.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFont>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSet>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

namespace
{

FuzzBytes *modalBytes = nullptr;
sim::SimulatedController *modalClock = nullptr;
QPointer<QWidget> lastModal;
int sameModalTicks = 0;
// What an input may do in modal dialogs, all of them together.
constexpr int ModalActions = 48;
int modalActionsLeft = 0;
// Qt keeps references to argc and argv for the application's whole life.
int qtArgc = 1;
char *qtArgv[] = { const_cast<char *>("fuzz"), nullptr };

void pressKey(QWidget *widget, int key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
}

void pokeTable(QTableWidget *table, FuzzBytes &bytes)
{
    if (table->rowCount() == 0 || table->columnCount() == 0)
        return;
    const int row = bytes.pick(table->rowCount());
    const int column = bytes.pick(table->columnCount());
    // Moving the current cell may fill the table again (an open name editor
    // is committed, a queued reopen runs): only then is the item taken.
    table->setCurrentCell(row, column);
    QTableWidgetItem *item = table->item(row, column);
    switch (bytes.pick(5)) {
    case 0:
        emit table->cellClicked(row, column);
        break;
    case 1:
        emit table->cellDoubleClicked(row, column);
        break;
    case 2:
        if (item && (item->flags() & Qt::ItemIsEditable))
            item->setText(QString::fromLatin1(bytes.text(40)));
        break;
    case 3:
        if (item && (item->flags() & Qt::ItemIsUserCheckable))
            item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        break;
    default:
        // Those the table leaves alone reach the dialog (F8 turns the tab).
        static const int keys[] = { Qt::Key_Space, Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete,
            Qt::Key_Escape, Qt::Key_F8 };
        pressKey(table, keys[bytes.pick(6)]);
    }
}

void actOnModal()
{
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return;
    sameModalTicks = modal == lastModal ? sameModalTicks + 1 : 0;
    lastModal = modal;
    FuzzBytes none { nullptr, 0 };
    FuzzBytes &bytes = modalBytes ? *modalBytes : none;
    // An input that clicks on and on, say a dialog open and closed again,
    // is a slow input and no deeper: from then on every modal is answered.
    const int action = sameModalTicks < 40 && modalActionsLeft-- > 0 ? bytes.pick(4) : 0;
    if (action == 3 && modalClock) {
        // Nothing more on this modal: the timers may have closed it.
        Fuzzing::passTime(modal, *modalClock, bytes);
        return;
    }
    if (action != 0) {
        Fuzzing::poke(modal, bytes);
        return;
    }
    auto *dialog = qobject_cast<QDialog *>(modal);
    if (!dialog) {
        modal->close();
    } else if (qobject_cast<QMessageBox *>(dialog)) {
        static const int answers[] = { QMessageBox::No, QMessageBox::Yes, QMessageBox::Ok };
        dialog->done(answers[bytes.pick(3)]);
    } else if (sameModalTicks > 45) {
        dialog->done(QDialog::Rejected); // one that refuses to close
    } else {
        bytes.pick(2) ? dialog->accept() : dialog->reject();
    }
}

// Qt never fires a timer again while its slot runs, so the timer only posts
// the action: a dialog that the action opens is then answered as well.
void answerModal()
{
    if (QApplication::activeModalWidget())
        QMetaObject::invokeMethod(qApp, actOnModal, Qt::QueuedConnection);
}

// Windows are polished, laid out and shown as on a screen, but never
// painted: the offscreen platform's painting took most of an input's time,
// and the plug-in paints nothing of its own.
class Unpainted : public QObject
{
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Polish && object->isWidgetType()
            && static_cast<QWidget *>(object)->isWindow())
            static_cast<QWidget *>(object)->setAttribute(Qt::WA_DontShowOnScreen);
        // Nor told, widget by widget, that a modal dialog blocks their
        // window: every kept window heard it at every modal's opening.
        if ((event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked)
            && object->isWidgetType() && !static_cast<QWidget *>(object)->isWindow())
            return true;
        return event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint;
    }
};

} // namespace

QByteArray FuzzBytes::text(int maxLength)
{
    const int length = qMin<qint64>(pick(maxLength + 1), qint64(size - qMin(at, size)));
    const QByteArray result(reinterpret_cast<const char *>(data) + at, length);
    at += size_t(length);
    return result;
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    static QTemporaryDir home; // the preferences file goes there
    qputenv("HOME", QFile::encodeName(home.path()));
    new QApplication(qtArgc, qtArgv);
    // Measuring text was the most of laying out tables and dialogs, and
    // nearly all of it shaping, which Latin text does not need.
    QFont font = QApplication::font();
    font.setStyleStrategy(QFont::PreferNoShaping);
    QApplication::setFont(font);
    qApp->installEventFilter(new Unpainted);
    // The offscreen platform says so for every dialog shown.
    static const QtMessageHandler qtHandler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext &where, const QString &text) {
            if (!text.startsWith(QLatin1String("This plugin does not support")))
                qtHandler(type, where, text);
        });
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, answerModal);
    timer->start(0);
    return 0;
}

namespace Fuzzing
{

void require(bool ok, const QString &what)
{
    if (!ok)
        fail(what);
}

void fail(const QString &what)
{
    qFatal("==fuzz== %s", qPrintable(what)); // aborts
}

void poke(QWidget *window, FuzzBytes &bytes)
{
    // Help pages ask the controller nothing, and laying out their text took
    // a fifth of the time: each window's help opens once a process.
    static QSet<QByteArray> helpShown;
    const QByteArray windowClass = window->metaObject()->className();
    const QLatin1String help("pushButton_help");
    QList<QWidget *> widgets;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (!widget->isEnabled() || !widget->isVisibleTo(window))
            continue;
        const QWidget *parent = widget->parentWidget();
        const bool inner = qobject_cast<const QAbstractSpinBox *>(parent)
            || qobject_cast<const QComboBox *>(parent)
            || qobject_cast<const QTableWidget *>(parent);
        const bool seen = helpShown.contains(windowClass) && widget->objectName() == help;
        if (!inner && !seen)
            widgets << widget;
    }
    if (widgets.isEmpty())
        return;
    QWidget *widget = widgets.at(bytes.pick(widgets.size()));
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        if (button->objectName() == help)
            helpShown.insert(windowClass);
        button->click();
    } else if (auto *table = qobject_cast<QTableWidget *>(widget)) {
        pokeTable(table, bytes);
    } else if (auto *spinBox = qobject_cast<QAbstractSpinBox *>(widget)) {
        // Typed as an operator types, in range or not, and finished with Enter.
        if (auto *edit = spinBox->findChild<QLineEdit *>())
            edit->setText(QString::number((bytes.pick(256) - 64) / (bytes.pick(2) ? 1.0 : 8.0)));
        pressKey(spinBox, Qt::Key_Return);
    } else if (auto *comboBox = qobject_cast<QComboBox *>(widget)) {
        comboBox->setCurrentIndex(bytes.pick(comboBox->count()));
    } else if (auto *lineEdit = qobject_cast<QLineEdit *>(widget)) {
        lineEdit->setText(QString::fromLatin1(bytes.text(40)));
    } else if (auto *tabs = qobject_cast<QTabWidget *>(widget)) {
        tabs->setCurrentIndex(bytes.pick(tabs->count()));
    }
}

void driveModals(FuzzBytes *bytes, sim::SimulatedController *clock)
{
    modalBytes = bytes;
    modalClock = clock;
    modalActionsLeft = ModalActions;
}

void passTime(QWidget *window, sim::SimulatedController &clock, FuzzBytes &bytes)
{
    clock.advanceClock(bytes.pick(256) * 50);
    for (TargetSearch *search : window->findChildren<TargetSearch *>()) {
        for (QTimer *timer : { search->measurementTimer(), search->statusTimer() }) {
            for (int times = bytes.pick(4); times > 0 && timer->isActive(); --times) {
                QTimerEvent tick(timer->timerId());
                QCoreApplication::sendEvent(timer, &tick);
            }
        }
    }
}

} // namespace Fuzzing
