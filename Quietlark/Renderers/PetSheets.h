#pragma once

#include "Quietlark/Theme/Appearance.h"

#include <filesystem>

/// The pictures that renderers write. Each returns false when something couldn't be written.
namespace quietlark {

/// Every flavour, complete, each with other looks; at full size and at 40 points.
bool renderSprites(const std::filesystem::path& folder, Appearance appearance);

/// One sheet for each vocabulary of looks: flavours (also in grey), faces, expressions, growth, accessories,
/// keepsakes, props.
bool renderLooks(const std::filesystem::path& folder, Appearance appearance);

/// A strip of frames for each mood and each gesture.
bool renderMotion(const std::filesystem::path& folder, Appearance appearance);

/// The program's icon in the sizes that a desktop asks for.
bool renderAppIcon(const std::filesystem::path& folder, Appearance appearance);

/// The tray icon in all moods at 16, 22 and 24 pixels, on light and dark panels, and as seen through a glass.
bool renderIconOptions(const std::filesystem::path& folder, Appearance appearance);

/// Each cue as a WAV file by its name, whatever the appearance.
bool exportSounds(const std::filesystem::path& folder, Appearance appearance);

/// The heads-up, the countdown and the toasts with all that they may say; how they come, go and answer.
bool renderNotePictures(const std::filesystem::path& folder, Appearance appearance);

/// The three nudges from their arrival to their exit, frame by frame.
bool renderNudgeClips(const std::filesystem::path& folder, Appearance appearance);

/// The three nudges as cards, at the moments that matter.
bool renderNudgeCards(const std::filesystem::path& folder, Appearance appearance);

/// The popover of the tray in the states that it comes in.
bool renderTrayPictures(const std::filesystem::path& folder, Appearance appearance);

/// The window of the first run and that of the settings.
bool renderWelcomePictures(const std::filesystem::path& folder, Appearance appearance);

/// The break screen in each of its states, at one and two pixels a point.
bool renderBreakScreens(const std::filesystem::path& folder, Appearance appearance);

/// All of the surfaces above, light and dark, each in a folder of its own.
bool renderPreviews(const std::filesystem::path& folder, Appearance appearance);

/// A walk through one morning with the program, situation by situation.
bool renderUXReview(const std::filesystem::path& folder, Appearance appearance);

} // namespace quietlark
