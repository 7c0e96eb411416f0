// Gives the precompiled headers of the tests a target: see cmake/Rooms.cmake.
