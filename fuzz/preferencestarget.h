#ifndef PREFERENCESTARGET_H
#define PREFERENCESTARGET_H

#include "fuzztarget.h"

#include <QTemporaryDir>

#include <memory>

// The tracking dialog's preferences file. Whatever the file holds, reading
// it must either succeed or give an error report that begins with "Error: "
// and names the file, leave the file as it was, agree with a second reading,
// and what the dialog then writes must read back cleanly with the same
// settings.
class PreferencesTarget : public FuzzTarget
{
public:
    QString name() const override { return QStringLiteral("fuzz_preferences"); }
    int maxLength() const override { return 16384; }
    void setUp() override;
    QList<QByteArray> seeds() const override;
    QList<QByteArray> dictionary() const override;
    QStringList run(const QByteArray &input) override;

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

#endif // PREFERENCESTARGET_H
