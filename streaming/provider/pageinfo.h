#pragma once

#include <QString>

// An owner that can publish: the user itself or a page the user manages.
struct PageInfo {
    QString accessToken;
    QString id;
    QString name;
};
