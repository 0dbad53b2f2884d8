#include "data/ftp_file.h"

#include <QStringList>

#include <curl/curl.h>

#include <memory>
#include <utility>

namespace kaldo {

namespace {

constexpr qsizetype kLargest = 1024 * 1024;

struct CurlDeleter {
    void operator()(CURL *handle) const { curl_easy_cleanup(handle); }
    void operator()(CURLU *url) const { curl_url_cleanup(url); }
};
using CurlHandle = std::unique_ptr<CURL, CurlDeleter>;
using CurlUrl = std::unique_ptr<CURLU, CurlDeleter>;

FtpError failure(const FtpServer &server, const QString &reason) {
    return FtpError(
        QStringLiteral("El servidor %1 no entregó el archivo: %2.").arg(server.host, reason));
}

/// Each part is given by itself, so that no character of a name can end another part.
CurlUrl urlOf(const FtpServer &server, const QString &file) {
    QString directory = server.directory;
    while (directory.endsWith(u'/')) {
        directory.chop(1);
    }
    if (directory.isEmpty() && !server.directory.isEmpty()) {
        directory = QStringLiteral("/");
    }
    QString path = u'/' + file;
    if (!directory.isEmpty()) {
        path.prepend(u'/' + directory);
    }
    CurlUrl url(curl_url());
    const auto set = [&](CURLUPart part, const QString &value, unsigned flags = 0) {
        if (curl_url_set(url.get(), part, value.toUtf8().constData(), flags) != CURLUE_OK) {
            throw failure(server, QStringLiteral("los datos de conexión no son válidos"));
        }
    };
    set(CURLUPART_SCHEME, QStringLiteral("ftp"));
    set(CURLUPART_HOST, server.host);
    set(CURLUPART_PORT, QString::number(server.port));
    set(CURLUPART_PATH, path, CURLU_URLENCODE);
    return url;
}

/// Less than `count` makes libcurl end the transfer with an error.
size_t keep(const char *bytes, size_t size, size_t count, void *target) {
    auto *kept = static_cast<QByteArray *>(target);
    const auto length = static_cast<qsizetype>(size * count);
    if (kept->size() + length > kLargest) {
        return 0;
    }
    kept->append(bytes, length);
    return size * count;
}

void limit(CURL *curl, std::chrono::milliseconds patience) {
    const auto wholeSeconds = std::chrono::ceil<std::chrono::seconds>(patience).count();
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(patience.count()));
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(patience.count()));
    // The one limit that also holds for the good-bye.
    curl_easy_setopt(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(wholeSeconds));
#if LIBCURL_VERSION_NUM >= 0x075700
    // A name server that does not answer would hold the end back.
    curl_easy_setopt(curl, CURLOPT_QUICK_EXIT, 1L);
#endif
}

}  // namespace

QByteArray fetchFtpFile(const FtpServer &server, const QString &file,
                        std::chrono::milliseconds patience) {
    const CurlUrl url = urlOf(server, file);
    const CurlHandle curl(curl_easy_init());
    if (!curl) {
        throw failure(server, QStringLiteral("no hay memoria"));
    }
    QByteArray bytes;
    const QByteArray user = server.user.toUtf8();
    const QByteArray password = server.password.toUtf8();
    curl_easy_setopt(curl.get(), CURLOPT_CURLU, url.get());
    curl_easy_setopt(curl.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl.get(), CURLOPT_PROXY, "");
    if (!user.isEmpty()) {
        curl_easy_setopt(curl.get(), CURLOPT_USERNAME, user.constData());
        curl_easy_setopt(curl.get(), CURLOPT_PASSWORD, password.constData());
    }
    curl_easy_setopt(curl.get(), CURLOPT_WRITEFUNCTION, &keep);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEDATA, &bytes);
    limit(curl.get(), patience);
    const CURLcode result = curl_easy_perform(curl.get());
    if (result != CURLE_OK) {
        throw failure(server, QString::fromUtf8(curl_easy_strerror(result)));
    }
    return bytes;
}

}  // namespace kaldo
