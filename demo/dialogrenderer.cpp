#include "dialogrenderer.h"
#include "acceleratorcheck.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPixmap>
#include <QTabWidget>
#include <QTimer>

namespace
{

// Buttons that open another dialog without changing anything.
const char *const OpeningButtons[]
    = { "pushButton_advanced", "pushButton_help", "pushButton_filter" };

QString baseName(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()).toLower();
}

} // namespace

DialogRenderer::DialogRenderer(const QString &folder)
    : m_folder(folder)
{
}

QStringList DialogRenderer::render(const QList<QAction *> &actions, const QList<QWidget *> &windows)
{
    m_folder.mkpath(QStringLiteral("."));
    QApplication::processEvents();
    for (QAction *action : actions)
        open([action] { action->trigger(); });
    QApplication::processEvents();
    for (QWidget *window : windows)
        save(window, window, window->objectName());
    return m_files;
}

// The trigger runs the dialog's modal loop; a timer inside that loop renders
// and closes it. A fresh timer per level, since a timer's slot is not entered
// again while it runs a nested loop.
void DialogRenderer::open(const std::function<void()> &trigger)
{
    QWidget *outer = QApplication::activeModalWidget();
    QTimer poll;
    poll.setInterval(5);
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || modal == outer || !modal->isVisible())
            return;
        poll.stop();
        renderDialog(modal);
    });
    poll.start();
    trigger();
    poll.stop();
}

void DialogRenderer::renderDialog(QWidget *dialog)
{
    const QString name = baseName(dialog);
    const QList<QTabWidget *> tabWidgets = dialog->findChildren<QTabWidget *>();
    QTabWidget *tabs = tabWidgets.value(0);
    const int pages = tabs ? tabs->count() : 1;
    for (int page = 0; page < pages; ++page) {
        if (tabs) {
            tabs->setCurrentIndex(page);
            QApplication::processEvents();
            save(dialog, dialog,
                name + QLatin1Char('-')
                    + baseName(tabs->widget(page)).remove(QLatin1String("administration")));
        } else {
            save(dialog, dialog, name);
        }
        for (const char *buttonName : OpeningButtons) {
            const QList<QAbstractButton *> buttons
                = dialog->findChildren<QAbstractButton *>(QLatin1String(buttonName));
            for (QAbstractButton *button : buttons) {
                if (button->isVisibleTo(dialog) && button->isEnabled()
                    && button->window() == dialog)
                    open([button] { button->click(); });
            }
        }
    }
    if (auto *modal = qobject_cast<QDialog *>(dialog))
        modal->reject();
    else
        dialog->close();
}

void DialogRenderer::save(QWidget *widget, QWidget *window, const QString &name)
{
    if (m_names.contains(name))
        return;
    m_names.insert(name);
    const QString file = m_folder.filePath(name + QStringLiteral(".png"));
    const QPixmap picture = widget->grab();
    if (picture.save(file, "PNG"))
        m_files << file;
    else
        m_problems << tr("%1: cannot be written").arg(file);
    const QStringList clashes = AcceleratorCheck::clashes(window);
    for (const QString &clash : clashes)
        m_clashes << QStringLiteral("%1: %2").arg(file, clash);
}
