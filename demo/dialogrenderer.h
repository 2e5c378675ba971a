#ifndef DIALOGRENDERER_H
#define DIALOGRENDERER_H

#include <QCoreApplication>
#include <QDir>
#include <QList>
#include <QSet>
#include <QStringList>

#include <functional>

class QAction;
class QWidget;

// Pictures of what a user sees without a display to see it on: every
// dialog the given actions open, each tab of them, and the dialogs
// their help, advanced and filter buttons open in turn. Every dialog is
// closed with Cancel, so nothing is changed. Each picture is also checked
// for Alt letters used twice.
class DialogRenderer
{
    Q_DECLARE_TR_FUNCTIONS(DialogRenderer)

public:
    explicit DialogRenderer(const QString &folder);

    // Then the windows, each named by its object name, as the dialogs left
    // them. Returns the files written, in order.
    QStringList render(const QList<QAction *> &actions, const QList<QWidget *> &windows);
    // Files that could not be written.
    QStringList problems() const { return m_problems; }
    // Alt letters used twice in one picture: "FILE: Alt+X: ...".
    QStringList clashes() const { return m_clashes; }

private:
    void open(const std::function<void()> &trigger);
    void renderDialog(QWidget *dialog);
    void save(QWidget *widget, QWidget *window, const QString &name);

    QDir m_folder;
    QStringList m_files;
    QStringList m_problems;
    QStringList m_clashes;
    QSet<QString> m_names;
};

#endif // DIALOGRENDERER_H
