#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <QXmlStreamReader>
#include <map>

/// The built pages of the help, taken apart.
namespace help {

using namespace Qt::StringLiterals;

struct Page {
    QString Error;  ///< why the page is not well formed; empty when it is
    QStringList Ids;
    QStringList Links;  ///< of `href` and `src`, as they stand
    QSet<QString> Elements;
    QSet<QString> Bold;                   ///< the texts of `b`: captions
    QSet<QString> Code;                   ///< the texts of `code`
    std::map<QString, QStringList> Rows;  ///< the cells of table rows with an `id`
    std::map<QString, QString> Notes;     ///< the row behind each of these
};

inline QString Folder() {
    return QStringLiteral(TEMPOLARK_BIN_DIR) + u"/Help"_s;
}

/// Reads the elements of a page one by one.
class PageReader {
public:
    explicit PageReader(const QString& file) : file_(file) {
        if (!file_.open(QIODevice::ReadOnly)) {
            page_.Error = u"can't be read"_s;
        }
    }

    Page Read() {
        QXmlStreamReader xml(&file_);
        while (page_.Error.isEmpty() && !xml.atEnd()) {
            switch (xml.readNext()) {
                case QXmlStreamReader::StartElement:
                    Begin(xml.name().toString(), xml.attributes());
                    break;
                case QXmlStreamReader::Characters:
                    for (QString& text : texts_) {
                        text += xml.text();
                    }
                    break;
                case QXmlStreamReader::EndElement:
                    End(xml.name().toString());
                    break;
                default:
                    break;
            }
        }
        if (xml.hasError()) {
            page_.Error = u"line %1: %2"_s.arg(xml.lineNumber()).arg(xml.errorString());
        }
        return page_;
    }

private:
    void Begin(const QString& name, const QXmlStreamAttributes& attributes) {
        page_.Elements += name;
        texts_ += QString();
        if (const QString id = attributes.value("id"_L1).toString(); !id.isEmpty()) {
            page_.Ids += id;
            row_ = name == "tr"_L1 ? id : row_;
        }
        isNote_ = name == "tr"_L1 ? attributes.value("class"_L1) == "note"_L1 : isNote_;
        for (const QLatin1StringView link : {"href"_L1, "src"_L1}) {
            if (attributes.hasAttribute(link)) {
                page_.Links += attributes.value(link).toString();
            }
        }
    }

    void End(const QString& name) {
        const QString text = texts_.takeLast().simplified();
        if (name == "b"_L1) {
            page_.Bold += text;
        } else if (name == "code"_L1) {
            page_.Code += text;
        } else if ((name == "td"_L1 || name == "th"_L1) && !row_.isEmpty()) {
            if (isNote_) {
                page_.Notes[row_] = text;
            } else {
                page_.Rows[row_] += text;
            }
        } else if (name == "table"_L1) {
            row_.clear();
        }
    }

    QFile file_;
    Page page_;
    QStringList texts_;
    QString row_;
    bool isNote_ = false;
};

/// All pages, by their paths within the help: "Tempolark/600.html".
inline const std::map<QString, Page>& Pages() {
    static const std::map<QString, Page> pages = [] {
        std::map<QString, Page> read;
        QDirIterator files(Folder(), {u"*.html"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            read[QDir(Folder()).relativeFilePath(file)] = PageReader(file).Read();
        }
        return read;
    }();
    return pages;
}

}  // namespace help
