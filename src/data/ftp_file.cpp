#include "data/ftp_file.h"

#include <QLibrary>
#include <QStringList>

// Its checks of the options' types need the call by its own name.
#define CURL_DISABLE_TYPECHECK
#include <curl/curl.h>
#undef curl_easy_setopt

#include <memory>
#include <utility>

namespace kaldo {

namespace {

constexpr qsizetype kLargest = 1024 * 1024;

/// The calls of libcurl. The library brings some twenty others along, which would make every start
/// of the program wait for what few of them need: it is loaded by the first transfer, and stays.
struct CurlCalls {
    CurlCalls() : library(kLibrary, kInterface) {
        find(&url, "curl_url");
        find(&urlSet, "curl_url_set");
        find(&urlCleanup, "curl_url_cleanup");
        find(&init, "curl_easy_init");
        find(&setOption, "curl_easy_setopt");
        find(&perform, "curl_easy_perform");
        find(&textOf, "curl_easy_strerror");
        find(&cleanup, "curl_easy_cleanup");
    }
    template <typename Call>
    void find(Call *call, const char *name) {
        *call = reinterpret_cast<Call>(library.resolve(name));
        complete = complete && *call != nullptr;
    }

    static constexpr int kInterface = 4;
#ifdef Q_OS_WIN
    const QString kLibrary = QStringLiteral("libcurl");
#else
    const QString kLibrary = QStringLiteral("curl");
#endif
    QLibrary library;
    bool complete = true;
    decltype(&curl_url) url;
    decltype(&curl_url_set) urlSet;
    decltype(&curl_url_cleanup) urlCleanup;
    decltype(&curl_easy_init) init;
    decltype(&curl_easy_setopt) setOption;
    decltype(&curl_easy_perform) perform;
    decltype(&curl_easy_strerror) textOf;
    decltype(&curl_easy_cleanup) cleanup;
};

struct CurlDeleter {
    const CurlCalls *calls;
    void operator()(CURL *handle) const { calls->cleanup(handle); }
    void operator()(CURLU *url) const { calls->urlCleanup(url); }
};
using CurlHandle = std::unique_ptr<CURL, CurlDeleter>;
using CurlUrl = std::unique_ptr<CURLU, CurlDeleter>;

FtpError failure(const FtpServer &server, const QString &reason) {
    return FtpError(
        QStringLiteral("El servidor %1 no entregó el archivo: %2.").arg(server.host, reason));
}

/// Each part is given by itself, so that no character of a name can end another part.
CurlUrl urlOf(const CurlCalls &calls, const FtpServer &server, const QString &file) {
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
    CurlUrl url(calls.url(), {&calls});
    const auto set = [&](CURLUPart part, const QString &value, unsigned flags = 0) {
        if (calls.urlSet(url.get(), part, value.toUtf8().constData(), flags) != CURLUE_OK) {
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

void limit(const CurlCalls &calls, CURL *curl, std::chrono::milliseconds patience) {
    const auto wholeSeconds = std::chrono::ceil<std::chrono::seconds>(patience).count();
    calls.setOption(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(patience.count()));
    calls.setOption(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(patience.count()));
    // The one limit that also holds for the good-bye.
    calls.setOption(curl, CURLOPT_SERVER_RESPONSE_TIMEOUT, static_cast<long>(wholeSeconds));
#if LIBCURL_VERSION_NUM >= 0x075700
    // A name server that does not answer would hold the end back.
    calls.setOption(curl, CURLOPT_QUICK_EXIT, 1L);
#endif
}

}  // namespace

QByteArray fetchFtpFile(const FtpServer &server, const QString &file,
                        std::chrono::milliseconds patience) {
    const CurlCalls calls;
    if (!calls.complete) {
        throw failure(server, QStringLiteral("falta la biblioteca libcurl en este equipo"));
    }
    const CurlUrl url = urlOf(calls, server, file);
    const CurlHandle curl(calls.init(), {&calls});
    if (!curl) {
        throw failure(server, QStringLiteral("no hay memoria"));
    }
    QByteArray bytes;
    const QByteArray user = server.user.toUtf8();
    const QByteArray password = server.password.toUtf8();
    calls.setOption(curl.get(), CURLOPT_CURLU, url.get());
    calls.setOption(curl.get(), CURLOPT_NOSIGNAL, 1L);
    calls.setOption(curl.get(), CURLOPT_PROXY, "");
    if (!user.isEmpty()) {
        calls.setOption(curl.get(), CURLOPT_USERNAME, user.constData());
        calls.setOption(curl.get(), CURLOPT_PASSWORD, password.constData());
    }
    calls.setOption(curl.get(), CURLOPT_WRITEFUNCTION, &keep);
    calls.setOption(curl.get(), CURLOPT_WRITEDATA, &bytes);
    limit(calls, curl.get(), patience);
    const CURLcode result = calls.perform(curl.get());
    if (result != CURLE_OK) {
        throw failure(server, QString::fromUtf8(calls.textOf(result)));
    }
    return bytes;
}

}  // namespace kaldo
