#ifndef MODULELOADER_H
#define MODULELOADER_H

#include <QCoreApplication>
#include <QPluginLoader>
#include <QString>

class ModuleInterface;

// Loads one module plug-in and, when that fails, explains why in words a
// user can act on: the file, the loader's reason, and what the file's
// metadata says against what this host expects.
class ModuleLoader
{
    Q_DECLARE_TR_FUNCTIONS(ModuleLoader)

public:
    static const char *const ExpectedIid;
    static const char *const ExpectedClassName;

    ModuleLoader() = default;
    ~ModuleLoader();
    ModuleLoader(const ModuleLoader &) = delete;
    ModuleLoader &operator=(const ModuleLoader &) = delete;

    // Returns the module, or null with errorString() set.
    ModuleInterface *load(const QString &fileName);
    // Hands the module its last calls (shutdown, then cleanup) and unloads
    // the plug-in, which deletes the module object. Safe to call twice.
    void unload();

    ModuleInterface *module() const { return m_module; }
    QString fileName() const { return m_fileName; }
    QString errorString() const { return m_error; }

private:
    QString describeFailure(const QString &reason) const;

    QPluginLoader m_loader;
    ModuleInterface *m_module = nullptr;
    QString m_fileName;
    QString m_error;
};

#endif // MODULELOADER_H
