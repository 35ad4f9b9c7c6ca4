// SPDX-FileCopyrightText: 2026 The Quorvex developers
// SPDX-License-Identifier: MIT

#include "platform/qt/CarriedImage.h"

#include <QDir>
#include <QIconEngine>
#include <QPainter>
#include <algorithm>
#include <iterator>
#include <map>

namespace quorvex::platform::qt {

namespace {

// Reads the file of a size once that is asked for: QIcon::addFile reads each file at once, which is a good
// part of the program's start.
class CarriedImageEngine final : public QIconEngine {
public:
    explicit CarriedImageEngine(QString const& name) {
        QDir const folder(QStringLiteral(":/images"));
        // Not by a pattern, for which Qt would compile a regular expression.
        for (QString const& file : folder.entryList(QDir::Files)) {
            qsizetype const mark = file.lastIndexOf(u'-');
            if (QStringView(file).first(std::max<qsizetype>(mark, 0)) == name) {
                int const side = file.sliced(mark + 1).section(u'.', 0, 0).toInt();
                images_[side].Path = folder.filePath(file);
            }
        }
    }

    void paint(QPainter* painter, QRect const& place, QIcon::Mode mode, QIcon::State state) override {
        if (!isNull()) {
            QSize const pixels = place.size() * painter->device()->devicePixelRatio();
            IconFor(pixels).paint(painter, place, Qt::AlignCenter, mode, state);
        }
    }

    QPixmap pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state) override {
        return isNull() ? QPixmap() : IconFor(size).pixmap(size, 1, mode, state);
    }

    QSize actualSize(QSize const& size, QIcon::Mode, QIcon::State) override {
        int const side = isNull() ? 0 : std::min({ImageFor(size)->first, size.width(), size.height()});
        return {side, side};
    }

    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (auto const& [side, image] : images_) {
            sizes.append({side, side});
        }
        return sizes;
    }

    bool isNull() override { return images_.empty(); }

    [[nodiscard]] QIconEngine* clone() const override { return new CarriedImageEngine(*this); }

private:
    struct Image {
        QString Path;
        QIcon Read; // null as long as nobody asked for it
    };

    using Images = std::map<int, Image>; // by width and height, in pixels

    // The smallest one that need not be enlarged, or the largest.
    [[nodiscard]] Images::iterator ImageFor(QSize size) {
        auto const image = images_.lower_bound(std::min(size.width(), size.height()));
        return image == images_.end() ? std::prev(image) : image;
    }

    [[nodiscard]] QIcon const& IconFor(QSize size) {
        Image& image = ImageFor(size)->second;
        if (image.Read.isNull()) {
            image.Read = QIcon(image.Path);
        }
        return image.Read;
    }

    Images images_;
};

} // namespace

QIcon CarriedImage(QString const& name) {
    return QIcon(new CarriedImageEngine(name)); // which belongs to the icon
}

} // namespace quorvex::platform::qt
