// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT
//
// A quiet bay in the evening: something to set a cut-out object before. The
// foreground is plain sand, so that an object can stand on it.
//
// One unit is a metre.

#version 3.7;
#include "functions.inc"

global_settings { assumed_gamma 1.0 max_trace_level 4 }

#declare Eye = <0, 1.5, -6>;
camera { location Eye look_at <0, 1.12, 4> right x * 3 / 2 up y angle 46 }

// the low sun stands out of the picture, to the left
light_source { <-900, 420, 300>, rgb <1.0, 0.80, 0.58> * 1.5 }
light_source { <300, 800, -500>, rgb <0.55, 0.68, 1.0> * 0.35 shadowless }

sky_sphere {
    pigment { gradient y color_map {
        [0.000 rgb <0.95, 0.66, 0.44>]
        [0.045 rgb <0.88, 0.67, 0.52>]
        [0.120 rgb <0.60, 0.62, 0.66>]
        [0.300 rgb <0.28, 0.43, 0.63>]
        [1.000 rgb <0.10, 0.22, 0.45>] } }
    // thin streaks of cloud
    pigment { bozo turbulence 0.7 octaves 6 lambda 2.3 omega 0.55
        color_map {
            [0.00 rgbt <1, 1, 1, 1>]
            [0.50 rgbt <1, 0.9, 0.8, 1>]
            [0.70 rgbt <1.0, 0.82, 0.70, 0.55>]
            [1.00 rgbt <1.0, 0.86, 0.76, 0.25>] }
        scale <0.75, 0.07, 0.75> translate <3.1, 0.6, 0> }
}

// the sea, with swell that grows finer to the shore
plane { y, 0
    pigment { rgb <0.018, 0.075, 0.095> }
    normal { average normal_map {
        [1.0 bumps 0.13 scale <3.4, 1, 0.9>]
        [0.7 bumps 0.15 turbulence 0.3 scale <0.8, 1, 0.25>]
        [0.6 wrinkles 0.12 scale <14, 1, 5>] } }
    finish { ambient 0 diffuse 0.5 specular 0.25 roughness 0.015 reflection { 0.04, 0.75 fresnel on } conserve_energy }
    interior { ior 1.33 }
}

// hills across the bay, as slices of a rough height function, paler far away
#macro Hills(Distance, Height, Middle, Seed, Colour)
    isosurface {
        function {
            y - Height * exp(-pow((x - Middle) / Distance / 0.26, 2))
                * (0.25 + 0.75 * f_noise3d(x / Distance * 9, Seed, 0) + 0.22 * f_noise3d(x / Distance * 31, Seed, 3)
                    + 0.05 * f_noise3d(x / Distance * 130, Seed, 6)) + 2
        }
        contained_by { box { <-Distance, -3, Distance>, <Distance, Height * 1.4, Distance + 6> } }
        max_gradient 1.0
        accuracy 0.05
        pigment { rgb Colour }
        finish { ambient 0 diffuse 0.25 emission 0.55 }
    }
#end
Hills(1700, 130, 330, 3.7, <0.44, 0.38, 0.42>)
Hills(1150, 105, 500, 8.1, <0.25, 0.24, 0.30>)
Hills(1500, 80, -700, 5.3, <0.40, 0.35, 0.39>)

// the beach slopes into the water; a wet belt lies along its edge
#declare Ground = function(x, z) {
    0.30 - 0.062 * (z + 3.0) - 0.10 * sin(x * 0.21 + 0.6) + 0.045 * f_noise3d(x * 1.1, 0, z * 0.9) + 0.016 * f_noise3d(x * 4, 3, z * 4)
}
isosurface {
    function { y - Ground(x, z) }
    contained_by { box { <-30, -0.6, -7>, <30, 1.0, 16> } }
    max_gradient 0.9
    accuracy 0.0005
    texture {
        pigment { gradient y color_map {
            [0.00 rgb <0.20, 0.135, 0.085>]
            [0.10 rgb <0.23, 0.155, 0.10>]
            [0.30 rgb <0.60, 0.46, 0.32>]
            [1.00 rgb <0.68, 0.53, 0.37>] } scale 0.5 turbulence 0.02 }
        normal { average normal_map { [1 granite 0.12 scale 0.25] [1 bumps 0.35 scale 0.03] [1 bumps 0.5 scale 0.008] } }
        finish { ambient 0.02 diffuse 0.8 specular 0.04 roughness 0.1 }
    }
}
// foam where the last wave ran out
isosurface {
    function { y - 0.006 - 0.003 * f_noise3d(x * 3, 0, z * 3) }
    contained_by { box { <-30, 0, -7>, <30, 0.012, 6> } }
    max_gradient 0.8
    pigment { bozo turbulence 0.8 octaves 5 lambda 2.4
        color_map { [0.0 rgbt <0.9, 0.88, 0.85, 1>] [0.52 rgbt <0.9, 0.88, 0.85, 1>] [0.60 rgbt <0.9, 0.87, 0.83, 0.25>] [0.68 rgbt <0.9, 0.88, 0.85, 1>] [1.0 rgbt 1] }
        scale <1.6, 1, 0.30> }
    finish { ambient 0.05 diffuse 0.8 }
}
