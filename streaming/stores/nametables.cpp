#include "stores/nametables.h"

const QStringList& NameTables::pixelFormats()
{
    static const QStringList table{
        QStringLiteral("NONE"), QStringLiteral("YUV420P"), QStringLiteral("YUVJ420P"), QStringLiteral("YUV422P"),
        QStringLiteral("YUV422P10"), QStringLiteral("YUV444P"), QStringLiteral("YUVA420P"), QStringLiteral("YUVA422P"),
        QStringLiteral("YUVA444P"), QStringLiteral("YV12"), QStringLiteral("NV12"), QStringLiteral("NV21"),
        QStringLiteral("NV16"), QStringLiteral("NV61"), QStringLiteral("UYVY"), QStringLiteral("YUYV"),
        QStringLiteral("UYVA"), QStringLiteral("V210"), QStringLiteral("BGR24"), QStringLiteral("BGR32"),
        QStringLiteral("RGB24"), QStringLiteral("RGB32"), QStringLiteral("ARGB"), QStringLiteral("BGRA"),
        QStringLiteral("BGRX"), QStringLiteral("RGBA"), QStringLiteral("RGBX"), QStringLiteral("MJPG"),
        QStringLiteral("H264"), QStringLiteral("H265"), QStringLiteral("TEXTURE")};
    return table;
}

const QStringList& NameTables::videoConnectors()
{
    static const QStringList table{QStringLiteral("SDI"),       QStringLiteral("HDMI"),      QStringLiteral("Optical SDI"),
                                   QStringLiteral("Component"), QStringLiteral("Composite"), QStringLiteral("S-Video")};
    return table;
}

const QStringList& NameTables::audioConnectors()
{
    static const QStringList table{QStringLiteral("Embedded"), QStringLiteral("AES/EBU"), QStringLiteral("Analog"),
                                   QStringLiteral("Microphone"), QStringLiteral("Headphones")};
    return table;
}

const QStringList& NameTables::audioApis()
{
    static const QStringList table{QStringLiteral("DS"), QStringLiteral("WASAPI"), QStringLiteral("ASIO"),
                                   QStringLiteral("COREAUDIO")};
    return table;
}

const QStringList& NameTables::proResProfiles()
{
    static const QStringList table{QStringLiteral("PROXY"), QStringLiteral("LT"),   QStringLiteral("STANDARD"),
                                   QStringLiteral("HQ"),    QStringLiteral("4444"), QStringLiteral("XQ")};
    return table;
}

QString NameTables::audioFileExtensions()
{
    return QStringLiteral("wav wma mpa mp2 m1a m2a mp3 ogg m4a aac mka ra flac ape mpc mod ac3 dts tak");
}

QString NameTables::imageFileExtensions()
{
    return QStringLiteral("bmp jpg jpeg png tga svg tiff gif webp");
}

QString NameTables::videoFileExtensions()
{
    return QStringLiteral(
        "avi wmv wmp wm asf mpg mpeg mpe m1v m2v mpv2 mp2v dat ts tp tpr trp vob ifo ogm ogv mp4 m4v m4p m4b 3gp "
        "3gpp 3g2 3gp2 mkv rm ram rmvb rpm flv f4v swf mov qt amr nsv dpg m2ts m2t mts dvr-ms k3g skm evo nsr divx "
        "webm amv h264");
}

QString NameTables::projectFileExtension()
{
    return QStringLiteral("qsprj");
}

QString NameTables::proResProfile(int index, int low, int high)
{
    return proResProfiles().at(qBound(low, index, high));
}
