// Makes the pages of the manual for browsers and for the program's own window: one of HTML for each file of
// Markdown in a folder, and again for each of its other languages, which have folders of their own. What a
// language does not have is there in English. A link that leads nowhere is an error.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <map>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace {

using Node = cmark_node*;

const QString english = QStringLiteral("en");
const QString index = QStringLiteral("index");

std::runtime_error problem(const QString& file, const QString& what)
{
    return std::runtime_error((file + QStringLiteral(": ") + what).toStdString());
}

QByteArray contentsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw problem(path, file.errorString());
    return file.readAll();
}

void write(const QString& path, const QByteArray& contents)
{
    QSaveFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(contents) != contents.size() || !file.commit())
        throw problem(path, file.errorString());
}

/// All nodes of these types, in the order of the text.
std::vector<Node> nodesOf(Node root, std::initializer_list<cmark_node_type> types)
{
    std::vector<Node> found;
    auto* walk = cmark_iter_new(root);
    for (auto event = cmark_iter_next(walk); event != CMARK_EVENT_DONE; event = cmark_iter_next(walk)) {
        auto* node = cmark_iter_get_node(walk);
        for (const auto type : types) {
            if (event == CMARK_EVENT_ENTER && cmark_node_get_type(node) == type)
                found.push_back(node);
        }
    }
    cmark_iter_free(walk);
    return found;
}

QString textOf(Node root)
{
    QString text;
    for (auto* node : nodesOf(root, {CMARK_NODE_TEXT, CMARK_NODE_CODE}))
        text += QString::fromUtf8(cmark_node_get_literal(node));
    return text;
}

struct Section {
    int level;
    QString title;
    QString id; ///< what links to it end in
};

/// As usual for Markdown: small letters, hyphens for blanks, no punctuation, and a number for those that
/// there were.
QString idFor(const QString& title, const std::vector<Section>& earlier)
{
    static const QRegularExpression punctuation(QStringLiteral("[^\\w -]"),
                                                QRegularExpression::UseUnicodePropertiesOption);
    const auto plain = title.toLower().remove(punctuation).replace(u' ', u'-');
    auto id = plain;
    for (int number = 1; std::ranges::any_of(earlier, [&](const auto& one) { return one.id == id; });
         ++number)
        id = plain + u'-' + QString::number(number);
    return id;
}

/// A file of Markdown.
class Page {
public:
    /// Its sections have the names of those of `original`, the same page in English, where there is one:
    /// links and the program lead to them in every language.
    explicit Page(const QString& path, const Page* original = nullptr) : _path(path)
    {
        auto* parser = cmark_parser_new(CMARK_OPT_VALIDATE_UTF8);
        for (const auto* name : {"table", "autolink"})
            cmark_parser_attach_syntax_extension(parser, cmark_find_syntax_extension(name));
        const auto text = contentsOf(path);
        cmark_parser_feed(parser, text.constData(), static_cast<std::size_t>(text.size()));
        _root.reset(cmark_parser_finish(parser));
        cmark_parser_free(parser);
        nameSections(original);
    }

    const QString& path() const { return _path; }
    Node root() const { return _root.get(); }
    const QString& title() const { return _sections.front().title; }
    const std::vector<Section>& sections() const { return _sections; }
    bool hasSection(const QString& id) const
    {
        return std::ranges::any_of(_sections, [&id](const auto& one) { return one.id == id; });
    }
    std::runtime_error problem(const QString& what) const { return ::problem(_path, what); }

private:
    void nameSections(const Page* original)
    {
        for (auto* heading : nodesOf(root(), {CMARK_NODE_HEADING})) {
            Section section{cmark_node_get_heading_level(heading), textOf(heading), {}};
            section.id = idFor(section.title, _sections);
            if (original) {
                const auto number = _sections.size();
                if (number >= original->_sections.size() ||
                    original->_sections[number].level != section.level)
                    throw problem(
                        QStringLiteral("\"%1\" is not a section of %2").arg(section.title, original->_path));
                section.id = original->_sections[number].id;
            }
            auto* anchor = cmark_node_new(CMARK_NODE_CUSTOM_INLINE);
            cmark_node_set_on_enter(anchor, QStringLiteral("<a id=\"%1\"></a>").arg(section.id).toUtf8());
            cmark_node_prepend_child(heading, anchor);
            _sections.push_back(std::move(section));
        }
        if (_sections.empty() || _sections.front().level != 1)
            throw problem(QStringLiteral("it does not begin with a title"));
        if (original && _sections.size() != original->_sections.size())
            throw problem(QStringLiteral("it has fewer sections than %1").arg(original->_path));
    }

    struct Free {
        void operator()(Node node) const { cmark_node_free(node); }
    };

    QString _path;
    std::unique_ptr<cmark_node, Free> _root;
    std::vector<Section> _sections;
};

/// The manual in one language.
class Manual {
public:
    /// `original` is the manual in English, unless this is it.
    Manual(QString language, const QDir& source, const Manual* original)
        : _language(std::move(language)), _source(source)
    {
        if (!original)
            findPages();
        else
            _names = original->_names;
        for (const auto& name : std::as_const(_names)) {
            const auto path = source.filePath(name + QStringLiteral(".md"));
            const bool isHere = !original || QFile::exists(path);
            _pages.emplace(name, Page(isHere ? path : original->page(name).path(),
                                      original ? &original->page(name) : nullptr));
            if (!isHere)
                _inEnglish.insert(name);
        }
        _english = original;
    }

    const Page& page(const QString& name) const { return _pages.at(name); }

    /// Pages and pictures, below the folder. Gives the pictures that are on some page.
    QSet<QString> writeTo(const QDir& folder)
    {
        QSet<QString> pictures;
        for (const auto& name : std::as_const(_names)) {
            followLinks(_pages.at(name), pictures);
            write(folder.filePath(inFolder(name + QStringLiteral(".html"))), htmlOf(name));
        }
        return pictures;
    }

private:
    /// In the order in which the first one leads to them.
    void findPages()
    {
        _names << index;
        const Page first(_source.filePath(index + QStringLiteral(".md")));
        for (auto* link : nodesOf(first.root(), {CMARK_NODE_LINK})) {
            const auto name =
                QString::fromUtf8(cmark_node_get_url(link)).section(QStringLiteral(".md"), 0, 0);
            if (QFile::exists(_source.filePath(name + QStringLiteral(".md"))) && !_names.contains(name))
                _names << name;
        }
        const auto files = _source.entryList({QStringLiteral("*.md")}, QDir::Files);
        for (const auto& file : files) {
            if (!_names.contains(QFileInfo(file).completeBaseName()))
                throw first.problem(QStringLiteral("it does not lead to %1").arg(file));
        }
    }

    QString inFolder(const QString& file) const { return _english ? _language + u'/' + file : file; }

    /// Leads the links of the page to HTML, and its pictures to those of this language, if there are such.
    void followLinks(const Page& page, QSet<QString>& pictures) const
    {
        for (auto* link : nodesOf(page.root(), {CMARK_NODE_LINK, CMARK_NODE_IMAGE})) {
            const auto url = QString::fromUtf8(cmark_node_get_url(link));
            if (url.contains(u':'))
                continue;
            if (cmark_node_get_type(link) == CMARK_NODE_LINK) {
                cmark_node_set_url(link, linkTo(page, url).toUtf8());
                continue;
            }
            if (textOf(link).isEmpty())
                throw page.problem(QStringLiteral("%1 has no words for who does not see it").arg(url));
            const bool isHere = QFile::exists(_source.filePath(url));
            if (!isHere && !(_english && QFile::exists(_english->_source.filePath(url))))
                throw page.problem(QStringLiteral("there is no picture %1").arg(url));
            pictures << (isHere ? inFolder(url) : url);
            if (!isHere)
                cmark_node_set_url(link, (QStringLiteral("../") + url).toUtf8());
        }
    }

    QString linkTo(const Page& page, const QString& url) const
    {
        const auto file = url.section(u'#', 0, 0);
        const auto id = url.section(u'#', 1);
        const auto name = QFileInfo(file).completeBaseName();
        if (!file.isEmpty() && (!_names.contains(name) || file != name + QStringLiteral(".md")))
            throw page.problem(QStringLiteral("there is no page %1").arg(file));
        if (!id.isEmpty() && !(file.isEmpty() ? page : _pages.at(name)).hasSection(id))
            throw page.problem(QStringLiteral("there is no section %1").arg(url));
        return (file.isEmpty() ? QString() : name + QStringLiteral(".html")) +
               (id.isEmpty() ? QString() : u'#' + id);
    }

    static QString link(const QString& url, const QString& title, const QString& more = {})
    {
        return QStringLiteral("<a href=\"%1\"%2>%3</a>").arg(url, more, title.toHtmlEscaped());
    }
    QString linkToPage(const QString& name, const QString& more = {}) const
    {
        return link(name + QStringLiteral(".html"), page(name).title(), more);
    }

    /// Of the whole manual: beside the page where there is room, else below.
    QString contents(const QString& current) const
    {
        QString list;
        for (const auto& name : _names)
            list += QStringLiteral("<li>%1</li>\n")
                        .arg(linkToPage(name, name == current ? QStringLiteral(" aria-current=\"page\"")
                                                              : QString()));
        return QStringLiteral("<div class=\"contents\" role=\"navigation\">\n<ul>\n%1</ul>\n</div>\n")
            .arg(list);
    }

    /// Of a page that is too long to be seen at a glance.
    static QString sectionsOf(const Page& page)
    {
        constexpr int few = 3;
        QString list;
        int count = 0;
        for (const auto& section : page.sections()) {
            if (section.level != 2)
                continue;
            list += QStringLiteral("<li>%1</li>\n").arg(link(u'#' + section.id, section.title));
            ++count;
        }
        return count <= few ? QString() : QStringLiteral("<ul class=\"sections\">\n%1</ul>\n").arg(list);
    }

    /// To the pages before and after it.
    QString steps(const QString& name) const
    {
        const auto number = _names.indexOf(name);
        QStringList links;
        if (number > 0)
            links << QStringLiteral("← ") + linkToPage(_names[number - 1], QStringLiteral(" rel=\"prev\""));
        if (number + 1 < _names.size())
            links << linkToPage(_names[number + 1], QStringLiteral(" rel=\"next\"")) + QStringLiteral(" →");
        return QStringLiteral("<p class=\"steps\">%1</p>\n")
            .arg(links.join(QStringLiteral(" &nbsp; · &nbsp; ")));
    }

    QByteArray htmlOf(const QString& name) const
    {
        const auto& shown = page(name);
        const auto sections = sectionsOf(shown);
        if (!sections.isEmpty()) {
            auto* block = cmark_node_new(CMARK_NODE_CUSTOM_BLOCK);
            cmark_node_set_on_enter(block, sections.toUtf8());
            cmark_node_insert_after(cmark_node_first_child(shown.root()), block);
        }
        const std::unique_ptr<char, decltype(&std::free)> body(
            cmark_render_html(shown.root(), CMARK_OPT_UNSAFE, nullptr), &std::free);
        return QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n<meta charset=\"utf-8\">\n"
                              "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                              "<title>%2 – ridelog</title>\n<link rel=\"stylesheet\" href=\"%3manual.css\">\n"
                              "</head>\n<body>\n<div class=\"page\" role=\"main\">\n")
                   .arg(_inEnglish.contains(name) ? english : _language, shown.title().toHtmlEscaped(),
                        _english ? QStringLiteral("../") : QString())
                   .toUtf8() +
               body.get() + (steps(name) + QStringLiteral("</div>\n") + contents(name)).toUtf8() +
               "</body>\n</html>\n";
    }

    QString _language;
    QDir _source;
    const Manual* _english = nullptr;
    QStringList _names; ///< of the pages, in their order
    std::map<QString, Page> _pages;
    QSet<QString> _inEnglish; ///< pages that this language does not have
};

/// Folders that are called as a language is: not that of the pictures.
QStringList languagesIn(const QDir& source)
{
    static const QRegularExpression code(QStringLiteral("^[a-z]{2,3}(_[A-Z]{2})?$"));
    return source.entryList(QDir::Dirs | QDir::NoDotAndDotDot).filter(code);
}

void makeManual(const QDir& source, const QDir& target)
{
    Manual original(english, source, nullptr);
    // The pages of other languages stand in for what is changed when a page is written.
    std::vector<std::unique_ptr<Manual>> manuals;
    for (const auto& language : languagesIn(source))
        manuals.push_back(std::make_unique<Manual>(language, QDir(source.filePath(language)), &original));
    auto pictures = original.writeTo(target);
    for (const auto& manual : manuals)
        pictures += manual->writeTo(target);
    for (const auto& picture : std::as_const(pictures))
        write(target.filePath(picture), contentsOf(source.filePath(picture)));
    const auto style = QStringLiteral("manual.css");
    write(target.filePath(style), contentsOf(source.filePath(style)));
    const auto all = QDir(source.filePath(QStringLiteral("pictures"))).entryList(QDir::Files);
    for (const auto& picture : all) {
        if (!pictures.contains(QStringLiteral("pictures/") + picture))
            throw problem(picture, QStringLiteral("it is on no page"));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const auto words = QCoreApplication::arguments();
    if (words.size() != 3) {
        std::fprintf(stderr, "usage: make-manual FOLDER TARGET\n");
        return 2;
    }
    cmark_gfm_core_extensions_ensure_registered();
    try {
        makeManual(QDir(words[1]), QDir(words[2]));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "make-manual: %s\n", error.what());
        return 1;
    }
    return 0;
}
