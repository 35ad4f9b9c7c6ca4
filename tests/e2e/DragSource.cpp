// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

// Stands for a file manager: a small window at the given place from which the file that the arguments name
// can be dragged. It stays, as it is asked for the file after the drop, and
// writes whether it may be dropped where the mouse is.

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>
#include <cstdio>

namespace {

class FileWindow : public QWidget {
public:
    explicit FileWindow(QString const& path) : file_(QUrl::fromLocalFile(path)) {}

protected:
    void mouseMoveEvent(QMouseEvent*) override {
        auto* const drag = new QDrag(this); // deletes itself
        auto* const files = new QMimeData;  // the drag's
        files->setUrls({file_});
        drag->setMimeData(files);
        connect(drag, &QDrag::actionChanged, [](Qt::DropAction action) {
            std::puts(action == Qt::CopyAction ? "may be dropped" : "may not be dropped");
            std::fflush(stdout);
        });
        drag->exec(Qt::CopyAction);
    }

private:
    QUrl file_;
};

} // namespace

int main(int argc, char** argv) {
    QApplication const application(argc, argv);
    QStringList const arguments = QApplication::arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    FileWindow window(arguments.at(1));
    window.setWindowFlags(Qt::ToolTip); // where it is put, and over every other window
    constexpr int Side = 40;
    window.setGeometry(arguments.at(2).toInt(), arguments.at(3).toInt(), Side, Side);
    window.show();
    return QApplication::exec();
}
