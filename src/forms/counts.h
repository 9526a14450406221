// How many of a thing a jukebox shows.
#pragma once

namespace veneerer {

inline constexpr int kTracks = 20;
inline constexpr int kGenres = 28;
inline constexpr int kThumbnailsPerGenre = 4;
inline constexpr int kOtherAlbums = 10;

/// Covers that stand in a row, from index 0.
inline constexpr int kCovers = 28;
/// The featured album, behind them.
inline constexpr int kFeaturedCover = kCovers;
/// The last index that every cover family has. No cover in use lies beyond it.
inline constexpr int kHighestCover = kFeaturedCover;

}  // namespace veneerer
