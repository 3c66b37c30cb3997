#include "PagePictures.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <vector>

namespace host::desktop {

namespace {

const int soonMilliseconds = 150;
const int lateMilliseconds = 5000;
/// Widths are asked for in steps, so that dragging a splitter does not ask for each pixel.
const int step = 64;
const int widest = 1024;
/// A page may be that much taller than wide, and is drawn smaller otherwise.
const int tallest = 3;
const int mostPixels = 4'000'000;
const int longestLine = 1 << 16;
const int mostPages = 24;

} // namespace

PagePictures::PagePictures(const QString& program, QObject* parent)
    : QObject(parent), m_program(program), m_hasGivenUp(program.isEmpty())
{
    for (QTimer* each : {&m_soon, &m_late})
        each->setSingleShot(true);
    m_late.setInterval(lateMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &PagePictures::ask);
    connect(&m_late, &QTimer::timeout, this, &PagePictures::giveUp);
}

PagePictures::~PagePictures()
{
    drop();
}

void PagePictures::setDocument(const QByteArray& path, const QByteArray& password,
                               const std::shared_ptr<const void>& state)
{
    if (path == m_path && password == m_password && state == m_state)
        return;
    drop();
    m_path = path;
    m_password = password;
    m_state = state;
    m_pages.clear();
    m_wanted.clear();
    m_hasGivenUp = m_program.isEmpty() || path.isEmpty();
}

QImage PagePictures::of(int page, double width)
{
    Page& known = m_pages[page];
    const int wanted = std::min(widest, static_cast<int>(std::ceil(width / step)) * step);
    if (wanted > known.asked && !m_hasGivenUp && m_pages.size() <= mostPages) {
        known.asked = wanted;
        m_wanted.insert(page, wanted);
        if (!m_soon.isActive())
            m_soon.start(m_child ? 0 : soonMilliseconds);
    }
    return known.image;
}

/// The last that is asked for is answered first: the smallest.
void PagePictures::ask()
{
    if (!m_child)
        start();
    std::vector<std::pair<int, int>> wanted;
    for (auto each = m_wanted.constBegin(); each != m_wanted.constEnd(); ++each)
        wanted.emplace_back(-each.value(), each.key());
    std::sort(wanted.begin(), wanted.end());
    m_wanted.clear();
    for (const auto& [width, page] : wanted) {
        const QJsonObject request{
            {"id", page}, {"page", page}, {"width", -width}, {"height", -width * tallest}};
        m_child->write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
        ++m_unanswered;
    }
    m_late.start();
}

void PagePictures::start()
{
    m_bytes.clear();
    m_coming = {};
    m_unanswered = 0;
    m_child = std::make_unique<QProcess>();
    m_child->setStandardErrorFile(QProcess::nullDevice());
    connect(m_child.get(), &QProcess::readyReadStandardOutput, this, &PagePictures::take);
    connect(m_child.get(), &QProcess::errorOccurred, this, &PagePictures::giveUp);
    connect(m_child.get(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, [this] {
        if (m_unanswered > 0)
            return giveUp();
        m_late.stop(); // nothing was asked for some time
        m_child.release()->deleteLater();
    });
    m_child->start(m_program, QStringList());
    QJsonObject document{{"fileBytes", QString::fromLatin1(m_path.toBase64())}};
    if (!m_password.isEmpty())
        document.insert("password", QString::fromUtf8(m_password));
    m_child->write(QJsonDocument(document).toJson(QJsonDocument::Compact) + '\n');
}

void PagePictures::take()
{
    m_bytes += m_child->readAllStandardOutput();
    bool isUnderstood = true;
    bool isAny = false;
    while (isUnderstood) {
        if (!m_coming.isEmpty()) {
            if (!takePicture())
                break;
            isAny = true;
            continue;
        }
        const int end = m_bytes.indexOf('\n');
        if (end < 0) {
            isUnderstood = m_bytes.size() <= longestLine;
            break;
        }
        isUnderstood = takeAnswer(QJsonDocument::fromJson(m_bytes.left(end)).object());
        m_bytes.remove(0, end + 1);
    }
    if (!isUnderstood)
        giveUp();
    if (isAny)
        emit came();
}

/// \returns false for what is no answer.
bool PagePictures::takeAnswer(const QJsonObject& answer)
{
    const QString event = answer.value("event").toString();
    if (event == "document")
        return m_unanswered > 0; // a child that was taken over may say so for ever
    m_comingPage = answer.value("id").toInt();
    if (--m_unanswered < 0 || !m_pages.contains(m_comingPage))
        return false;
    if (m_unanswered == 0)
        m_late.stop();
    if (event == "noPage")
        return true;
    const QSize size(answer.value("width").toInt(), answer.value("height").toInt());
    const qint64 pixels = static_cast<qint64>(size.width()) * size.height();
    if (event != "page" || size.isEmpty() || pixels > mostPixels ||
        answer.value("bytes").toDouble() != static_cast<double>(4 * pixels))
        return false;
    m_coming = size;
    return true;
}

/// \returns false while it has not come whole.
bool PagePictures::takePicture()
{
    const int size = 4 * m_coming.width() * m_coming.height();
    if (m_bytes.size() < size)
        return false;
    const QImage image(reinterpret_cast<const uchar*>(m_bytes.constData()), m_coming.width(),
                       m_coming.height(), QImage::Format_RGB32);
    if (image.width() > m_pages[m_comingPage].image.width())
        m_pages[m_comingPage].image = image.copy();
    m_bytes.remove(0, size);
    m_coming = {};
    return true;
}

/// The document keeps the pictures that there are.
void PagePictures::giveUp()
{
    m_hasGivenUp = true;
    drop();
}

void PagePictures::drop()
{
    m_soon.stop();
    m_late.stop();
    if (!m_child)
        return;
    QProcess* child = m_child.release(); // perhaps one of its own signals is under way
    child->disconnect();
    if (child->state() == QProcess::NotRunning)
        return child->deleteLater();
    connect(child, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), child,
            &QObject::deleteLater);
    child->kill();
}

} // namespace host::desktop
