#include <moduleinterface.h>

#include <QApplication>
#include <QPluginLoader>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QPluginLoader loader(PLUGIN_DIR "/libtracking.so");
    auto *module = qobject_cast<ModuleInterface *>(loader.instance());
    QTextStream(stdout) << (module ? module->moduleVersion() : loader.errorString()) << '\n';
    return module ? 0 : 1;
}
