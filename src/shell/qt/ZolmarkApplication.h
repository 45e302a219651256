#pragma once

#include <QApplication>

class Desktop;

/// The toolkit's application: German texts, and a last resort for what nobody caught.
class ZolmarkApplication : public QApplication {
    Q_OBJECT

public:
    ZolmarkApplication(int &argc, char **argv, Desktop &desktop);

    /// An exception that nobody caught is told in a message, and the program goes on.
    bool notify(QObject *receiver, QEvent *event) override;

private:
    Desktop &desktop_;
};
