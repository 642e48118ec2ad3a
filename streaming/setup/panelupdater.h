#pragma once

#include "records/codecmodel.h"
#include "stores/channel.h"
#include "stores/oauth.h"

#include <QtGlobal>

class BaseWidget;
class Provider;

// Re-derives the provider panel from a provider: which rows and buttons show,
// what the lists hold, and which ingest address and key the panel points at.
// The provider's current channel (streamUrl/streamKey) is kept as that target.
class PanelUpdater
{
public:
    // What a provider's feature word asks of the panel.
    enum Feature : quint32 {
        ServerRow = 0x1,       // with a non-empty server table
        CustomRow = 0x2,
        ChannelRow = 0x4,      // once authorised
        StreamUrlRow = 0x8,
        StreamKeyRow = 0x10,   // the key is pasted by the user
        SharingRow = 0x20,     // once authorised
        PageRow = 0x40,        // with page data
        AuthorizeButton = 0x80,
        ChannelEditing = 0x100, // channels are events the user can add, edit and remove
        SignUpButton = 0x200,
        ServerChoice = 0x400,
        BestServerButton = 0x800,
    };

    explicit PanelUpdater(BaseWidget* panel);

    // Whether the row of `feature` shows for this provider (non-custom services).
    static bool rowWanted(Feature feature, const Provider* provider);
    // The account text that stands for an authorised account.
    static QString accountText(const Provider* provider);

    // Shows the rows the provider asks for and reloads the server, channel and page
    // lists and the key from it (signals blocked). With `keepSelection` each list keeps
    // its selected text where it still exists; otherwise the first entry is chosen.
    void update(Provider* provider, bool keepSelection);
    // Reloads channels and pages only, keeping their selection.
    void updateChannels(Provider* provider, bool keepSelection = true);

    // Points the provider at the selected server, channel or custom server.
    void applyServer(Provider* provider);
    void applyChannel(Provider* provider);
    void applyCustomServer(Provider* provider);

    // Selects a stored row's server (for "Custom" in both server lists), page and channel
    // by text and points the provider at them. The lists stay silent, so restoring a
    // page choice never reloads the service's channels.
    void selectStored(Provider* provider, const CodecModel::Streaming& stored);

    // The streaming block a new row gets from the panel.
    CodecModel::Streaming target(const Provider* provider) const;

    // The custom server selected in the panel.
    bool customServer(Channel* channel, OAuth* oauth) const;

private:
    void showTarget(const Provider* provider);

    BaseWidget* m_panel;
};
