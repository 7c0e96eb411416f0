// Gives the precompiled headers of the rooms a target: see cmake/Rooms.cmake.
