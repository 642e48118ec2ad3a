#pragma once

#include <QString>

// The parts a CodecPreset is made of. Plain values, copied with the preset.
namespace CodecModel {

struct VideoCodec {
    bool enabled = true;
    QString codec;
    int bitRate = 0;        // kbps
    double frameRate = 0.0; // 0 = follow the project
    int field = 0;          // 0 progressive, else interlaced
    int width = 0;
    int height = 0;
    int quality = 0;        // ProRes profile index for "Apple ProRes"
    int keyFrame = 0;       // seconds
    int profile = 0;
    int bframes = 0;
    QString preset;
    QString tune;
};

struct AudioCodec {
    bool enabled = true;
    QString codec;
    int sampleRate = 0; // Hz
    int bitRate = 0;    // kbps
    int bitPerSamples = 0;
    int channels = 0;
};

// Where and how a stream goes.
struct Streaming {
    bool enabled = false;
    QString url;
    QString key;
    QString provider;
    QString serverName;
    QString pageName;
    QString channelName;
    bool authorized = false;
    QString username;
    QString password;
    QString mode;       // SRT mode
    QString filter;     // SRT filter
    int port = 0;
    int latency = 0;
    int keyLength = 0;
    QString passphrase;
    QString streamId;
};

// Where and how a recording is written.
struct Local {
    bool enabled = false;
    QString path;
    QString fileTag;
    int splitTime = 0; // seconds, 0 = no split
    QString mediaToBin;
};

struct Container {
    QString name; // also the file extension, lower case ("mp4")
    int id = 0;
};

} // namespace CodecModel
