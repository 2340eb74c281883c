// SPDX-FileCopyrightText: 2026 The Ornevo developers
// SPDX-License-Identifier: MIT
//
// A celadon teapot on a walnut table, in front of a cluttered shelf.
//
// One file renders three pictures; scripts/render-samples picks one with
// Declare=Stage=N:
//
//   0  the shelf at the back of the room, alone and sharp, as an HDR file
//   1  the photograph (needs the picture of stage 0 as room.hdr)
//   2  the teapot's mask: white teapot, everything else black
//
// The shelf is rendered once and hung up as a picture behind the table because
// tracing its hundreds of shapes for each of the lens's samples would take
// hours. It is the camera's own focal blur that puts it out of focus.
//
// One unit is a centimetre. The camera stands three metres away with a long
// lens: that way the room can be far out of focus while the few centimetres
// from the teapot's foot to its back blur by less than a pixel.

#version 3.7;

#ifndef (Stage) #declare Stage = 1; #end
#ifndef (Lens) #declare Lens = 1; #end         // 0: a quick look, all in focus
#ifndef (Samples) #declare Samples = 19; #end  // lens samples per pixel

global_settings {
    assumed_gamma 1.0
    max_trace_level 3
    adc_bailout 0.02
#if (Stage = 1)
    radiosity {
        pretrace_start 0.04
        pretrace_end 0.008
        count 120
        nearest_count 8
        error_bound 0.45
        recursion_limit 2
        low_error_factor 0.6
        gray_threshold 0.2
        minimum_reuse 0.012
        brightness 1
    }
#end
}

#declare Eye = <0, 33, -300>;
#declare Aim = <0.1, 8.2, -2>;
#declare Distance = vlength(Aim - Eye);
#declare FrameWidth = 40;     // what the picture spans at the teapot
#declare RoomDistance = 720;  // from the camera to the shelf
#declare RoomMargin = 1.3;    // the shelf's picture is that much wider

// --- meshes -----------------------------------------------------------------

// Turns a grid of points, closed around its second index, into a smooth mesh.
#macro GridMesh(Points, N, M)
    #local Normals = array[N + 1][M + 1];
    #local I = 0;
    #while (I <= N)
        #local J = 0;
        #while (J <= M)
            #local A = Points[min(I + 1, N)][J] - Points[max(I - 1, 0)][J];
            #local B = Points[I][mod(J + 1, M)] - Points[I][mod(J + M - 1, M)];
            #local C = vcross(A, B);
            #if (vlength(C) < 1e-9) #local C = A; #end
            #local Normals[I][J] = vnormalize(C);
            #local J = J + 1;
        #end
        #local I = I + 1;
    #end
    mesh {
        #local I = 0;
        #while (I < N)
            #local J = 0;
            #while (J < M)
                smooth_triangle { Points[I][J], Normals[I][J], Points[I + 1][J], Normals[I + 1][J],
                    Points[I + 1][J + 1], Normals[I + 1][J + 1] }
                smooth_triangle { Points[I][J], Normals[I][J], Points[I + 1][J + 1], Normals[I + 1][J + 1],
                    Points[I][J + 1], Normals[I][J + 1] }
                #local J = J + 1;
            #end
            #local I = I + 1;
        #end
    }
#end

// Spins a profile (x: radius, y: height; parameter 0 to 1) about the y axis.
#macro Turned(Profile, N, M)
    #local Points = array[N + 1][M + 1];
    #local I = 0;
    #while (I <= N)
        #local At = Profile(I / N);
        #local J = 0;
        #while (J <= M)
            #local Angle = 2 * pi * J / M;
            #local Points[I][J] = <max(At.x, 0.0005) * cos(Angle), At.y, max(At.x, 0.0005) * sin(Angle)>;
            #local J = J + 1;
        #end
        #local I = I + 1;
    #end
    GridMesh(Points, N, M)
#end

// A tube along a path in the plane z = 0; Radii gives its half width in that
// plane (x) and across it (y).
#macro Tube(Path, Radii, N, M)
    #local Points = array[N + 1][M + 1];
    #local I = 0;
    #while (I <= N)
        #local U = I / N;
        #local Here = Path(U);
        #local Along = vnormalize(Path(min(U + 0.01, 1)) - Path(max(U - 0.01, 0)));
        #local Across = <-Along.y, Along.x, 0>;
        #local Size = Radii(U);
        #local J = 0;
        #while (J <= M)
            #local Angle = 2 * pi * J / M;
            #local Points[I][J] = <Here.x, Here.y, 0> + Across * Size.x * cos(Angle) + z * Size.y * sin(Angle);
            #local J = J + 1;
        #end
        #local I = I + 1;
    #end
    GridMesh(Points, N, M)
#end

// --- the teapot -------------------------------------------------------------

#if (Stage > 0)

#declare BodyProfile = spline {
    natural_spline
    0.00, <4.10, 0.00, 0>
    0.06, <4.30, 0.25, 0>
    0.11, <4.28, 0.75, 0>
    0.20, <5.20, 1.60, 0>
    0.35, <6.75, 3.50, 0>
    0.50, <7.45, 5.90, 0>
    0.65, <7.10, 8.40, 0>
    0.80, <5.75, 10.45, 0>
    0.90, <4.55, 11.40, 0>
    0.95, <4.25, 11.72, 0>
    1.00, <4.02, 11.70, 0>
}
#declare LidProfile = spline {
    natural_spline
    0.00, <4.00, 11.55, 0>
    0.05, <4.08, 11.80, 0>
    0.12, <3.90, 12.02, 0>
    0.30, <2.95, 12.75, 0>
    0.45, <1.75, 13.28, 0>
    0.55, <0.95, 13.62, 0>
    0.62, <0.80, 14.05, 0>
    0.70, <1.12, 14.55, 0>
    0.80, <1.38, 15.15, 0>
    0.90, <1.02, 15.78, 0>
    0.96, <0.50, 16.02, 0>
    1.00, <0.00, 16.08, 0>
}
#declare SpoutPath = spline {
    natural_spline
    0.00, <-4.00, 4.60, 0>
    0.25, <-8.00, 5.10, 0>
    0.50, <-10.05, 7.30, 0>
    0.75, <-11.40, 9.90, 0>
    1.00, <-13.35, 11.85, 0>
}
#declare SpoutRadii = spline {
    natural_spline
    0.00, <2.25, 2.10, 0>
    0.25, <1.95, 1.75, 0>
    0.50, <1.42, 1.35, 0>
    0.75, <1.05, 1.02, 0>
    1.00, <0.86, 0.86, 0>
}
#declare SpoutInside = spline { linear_spline 0, <0.66, 0.66, 0> 1, <0.66, 0.66, 0> }
#declare SpoutInsidePath = spline { linear_spline 0, <-12.20, 10.78, 0> 1, <-13.38, 11.88, 0> }
#declare HandlePath = spline {
    natural_spline
    0.00, <5.20, 10.10, 0>
    0.14, <7.60, 11.35, 0>
    0.30, <10.60, 11.55, 0>
    0.45, <12.55, 10.00, 0>
    0.60, <12.75, 7.60, 0>
    0.75, <11.20, 5.20, 0>
    0.90, <8.40, 3.75, 0>
    1.00, <6.20, 3.50, 0>
}
#declare HandleRadii = spline {
    natural_spline
    0.00, <0.95, 1.20, 0>
    0.15, <0.66, 0.95, 0>
    0.50, <0.58, 0.90, 0>
    0.85, <0.64, 0.95, 0>
    1.00, <0.95, 1.25, 0>
}

#declare Teapot = union {
    Turned(BodyProfile, 110, 220)
    Turned(LidProfile, 110, 160)
    Tube(SpoutPath, SpoutRadii, 70, 64)
    Tube(SpoutInsidePath, SpoutInside, 4, 48)
    // the rounded lip of the spout
    torus { 0.76, 0.11 rotate z * 47 translate <-13.36, 11.86, 0> }
    Tube(HandlePath, HandleRadii, 110, 48)
    rotate y * -9
}

#end

#if (Stage = 1)

// Glaze runs thin over edges and pools in the carving, so the lines of the
// petals are a little darker than the rest. They stay faint: the outline has
// to be the strongest edge of the teapot.
#declare Petals = function {
    max(
        exp(-pow((y - 1.1 - 7.6 * pow(abs(cos(6 * atan2(z, x))), 0.75)) / 0.17, 2)),
        0.8 * exp(-pow((y - 1.1 - 6.4 * pow(abs(cos(6 * atan2(z, x))), 0.9)) / 0.13, 2))
    ) * (sqrt(x * x + z * z) < 7.6)
}
#declare CleanGlaze = pigment {
    gradient y
    color_map {
        [0.00 rgb <0.60, 0.655, 0.56>]
        [0.10 rgb <0.64, 0.70, 0.60>]
        [0.60 rgb <0.67, 0.73, 0.63>]
        [1.00 rgb <0.72, 0.765, 0.67>]
    }
    scale 17
    translate y * -0.1
}
#declare CarvedGlaze = pigment {
    function { Petals(x, y, z) }
    pigment_map {
        [0.0 CleanGlaze]
        [1.0 rgb <0.50, 0.575, 0.47>]
    }
}
// iron specks in the clay
#declare Clay = function { pattern { bozo scale 0.17 } }
#declare Glaze = pigment {
    function { Clay(x, y, z) }
    pigment_map {
        [0.00 CarvedGlaze]
        [0.78 CarvedGlaze]
        [0.86 rgb <0.45, 0.44, 0.35>]
        [1.00 rgb <0.42, 0.40, 0.31>]
    }
}
#declare Ceramic = texture {
    pigment { Glaze }
    normal { bumps 0.035 scale <3, 0.5, 3> }
    finish {
        ambient 0
        diffuse 0.92
        specular 0.28
        roughness 0.012
        reflection { 0.015, 0.16 falloff 4 }
    }
}

object { Teapot texture { Ceramic rotate y * -9 } }

#end

#if (Stage = 2)
object { Teapot pigment { rgb 1 } finish { ambient 0 diffuse 0 emission 1 } }
background { rgb 0 }
#end

// --- the table and what else stands on it -----------------------------------

#if (Stage = 1)

#declare Walnut = pigment {
    wood
    turbulence <0.06, 0.1, 0.02>
    octaves 4
    color_map {
        [0.00 rgb <0.165, 0.078, 0.038>]
        [0.35 rgb <0.125, 0.056, 0.027>]
        [0.70 rgb <0.080, 0.035, 0.018>]
        [0.85 rgb <0.110, 0.050, 0.024>]
        [1.00 rgb <0.165, 0.078, 0.038>]
    }
    scale <1.6, 1.6, 9>
    rotate y * 90
    rotate x * 4
}
#declare Grain = pigment {
    granite
    color_map {
        [0.0 rgbt <0.03, 0.012, 0.006, 0.35>]
        [0.45 rgbt <0.1, 0.05, 0.02, 1>]
        [1.0 rgbt <0.2, 0.1, 0.05, 0.85>]
    }
    scale <14, 1, 0.6>
}
#declare Planks = seed(41);
#declare Row = 0;
#while (Row < 12)
    #declare Shift = <rand(Planks) * 90, rand(Planks) * 14 - 3, rand(Planks) * 25>;
    box {
        <-90, -3, 0.06>, <90, 0, 13.94>
        texture { pigment { Walnut translate Shift }
            finish { ambient 0 diffuse 0.85 specular 0.10 roughness 0.06 } }
        texture { pigment { Grain translate Shift }
            finish { ambient 0 diffuse 0.85 specular 0.10 roughness 0.06 reflection { 0.0, 0.10 falloff 3 } }
            normal { granite 0.02 scale <8, 1, 0.5> } }
        translate z * (-96 + 14 * Row)
    }
    #declare Row = Row + 1;
#end
box { <-90, -3, -96>, <90, -0.12, 72> pigment { rgb <0.02, 0.01, 0.006> } finish { ambient 0 diffuse 0.8 } }

#declare Skin = finish { ambient 0 diffuse 0.85 specular 0.25 roughness 0.03 }
#declare OrangeShape = spline {
    natural_spline
    0.0, <0, 0, 0> 0.12, <1.5, 0.18, 0> 0.3, <3.2, 1.4, 0> 0.5, <3.9, 3.6, 0>
    0.7, <3.3, 5.7, 0> 0.88, <1.5, 6.9, 0> 0.96, <0.5, 6.9, 0> 1.0, <0, 6.75, 0>
}
#declare Orange = object { Turned(OrangeShape, 40, 48)
    pigment { bozo color_map { [0 rgb <0.72, 0.20, 0.02>] [1 rgb <0.62, 0.13, 0.015>] } scale 3 }
    normal { bumps 0.25 scale 0.25 } finish { Skin } }
#declare Plum = object { Turned(OrangeShape, 40, 48) scale <0.62, 0.66, 0.62>
    pigment { bozo color_map { [0 rgb <0.10, 0.018, 0.045>] [1 rgb <0.19, 0.035, 0.05>] } scale 2.5 }
    finish { Skin } }

object { Orange translate <-21.5, 0, 46> }
object { Orange rotate z * 20 translate <-14.0, 0.1, 56> }
object { Orange scale 0.95 translate <-18.6, 5.4, 52> }
object { Plum translate <17.3, 0, 4> }
object { Plum scale 1.05 translate <22.3, 0, 12> }

#declare BottleShape = spline {
    natural_spline
    0.0, <3.6, 0, 0> 0.1, <3.9, 1.2, 0> 0.4, <3.9, 11, 0> 0.52, <3.2, 14, 0>
    0.62, <1.5, 17, 0> 0.9, <1.25, 23, 0> 1.0, <1.35, 25, 0>
}
object { Turned(BottleShape, 50, 60) pigment { rgb <0.025, 0.085, 0.055> }
    finish { ambient 0 diffuse 0.8 specular 0.7 roughness 0.01 reflection 0.04 } translate <20.0, 0, 60> }


// --- the room ---------------------------------------------------------------

#declare View = vnormalize(Aim - Eye);
#declare RoomWidth = FrameWidth / Distance * RoomDistance * RoomMargin;
#declare Tilt = degrees(atan2(-View.y, View.z));
polygon {
    5, <0, 0>, <1, 0>, <1, 1>, <0, 1>, <0, 0>
    texture {
        pigment { image_map { hdr "room.hdr" once interpolate 2 } }
        finish { ambient 0 diffuse 0 emission 1 }
    }
    translate <-0.5, -0.5, 0>
    scale <RoomWidth, RoomWidth * 0.75, 1>
    translate z * RoomDistance
    rotate x * Tilt
    translate Eye
    no_shadow
}

// what the rest of the room reflects: dim walls, pale ceiling
sky_sphere {
    pigment { gradient y color_map {
        [0.0 rgb <0.10, 0.085, 0.07>] [0.5 rgb <0.22, 0.20, 0.18>] [1.0 rgb <0.50, 0.48, 0.45>] }
        scale 2 translate y * -1 }
}
// the window beside the camera, a bright card that shows in the glaze
box { <-1, -1, 0>, <1, 1, 0.1> scale <70, 80, 1>
    pigment { rgb 1 } finish { ambient 0 diffuse 0 emission 1.1 }
    rotate x * -22 rotate y * -48 translate <-210, 150, -190> no_shadow }

light_source { <-235, 200, -130>, rgb <1.0, 0.96, 0.90> * 1.10
    area_light <80, 0, -80>, <0, 113, 0>, 3, 3 adaptive 0 jitter circular }
light_source { <230, 120, -260>, rgb <1.0, 0.90, 0.78> * 0.34
    area_light <60, 0, 60>, <0, 85, 0>, 2, 2 adaptive 0 jitter circular }

#end

// --- the shelf at the back --------------------------------------------------

#if (Stage = 0)

#declare Paper = finish { ambient 0.0 diffuse 0.8 specular 0.08 roughness 0.05 }
#declare Shelf = pigment { rgb <0.16, 0.085, 0.045> }

// back wall and boards; the picture spans x -60..60, y 0..90
box { <-200, -100, 32>, <200, 200, 33> pigment { rgb <0.085, 0.075, 0.07> } finish { Paper } }
box { <-200, 33, -2>, <200, 35.5, 32> pigment { Shelf } finish { Paper } }
box { <-200, 69, -2>, <200, 71.5, 32> pigment { Shelf } finish { Paper } }
box { <-200, 0, -2>, <200, 2, 32> pigment { Shelf } finish { Paper } }

#declare Random = seed(2207);
#declare Cloths = array[9] {
    <0.28, 0.045, 0.035>, <0.045, 0.10, 0.17>, <0.10, 0.15, 0.075>, <0.30, 0.15, 0.045>,
    <0.06, 0.055, 0.05>, <0.24, 0.17, 0.10>, <0.13, 0.05, 0.08>, <0.05, 0.13, 0.12>, <0.36, 0.27, 0.16> }
#macro Books(From, To, Floor)
    #local X = From;
    #while (X < To)
        #local W = 2.2 + 3.4 * rand(Random);
        #local H = 19 + 10 * rand(Random);
        #local Deep = 3 + 4 * rand(Random);
        #local Colour = Cloths[int(rand(Random) * 8.99)] * (0.7 + 0.6 * rand(Random));
        union {
            box { <0, 0, 0>, <W - 0.15, H, 16> pigment { rgb Colour } }
            #if (rand(Random) > 0.45)
                box { <-0.02, H * 0.72, -0.1>, <W - 0.13, H * 0.84, 1> pigment { rgb <0.5, 0.40, 0.2> * (0.4 + rand(Random)) } }
            #end
            finish { Paper }
            #if (rand(Random) > 0.86) rotate z * -7 #end
            translate <X, Floor, Deep>
        }
        #local X = X + W;
        #if (rand(Random) > 0.88) #local X = X + 2.5; #end
    #end
#end
Books(-62, -38, 35.5)
Books(-14, 21, 35.5)
Books(43, 64, 35.5)
Books(-70, -30, 71.5)
Books(0, 70, 71.5)
Books(-64, 64, 2)

// jars, bottles and a lamp
#macro Jar(X, Floor, R, H, Colour)
    union {
        cylinder { <0, 0, 0>, <0, H * 0.62, 0>, R }
        sphere { <0, H * 0.62, 0>, R }
        cylinder { <0, H * 0.6, 0>, <0, H, 0>, R * 0.38 }
        cylinder { <0, H * 0.96, 0>, <0, H, 0>, R * 0.48 }
        pigment { rgb Colour }
        finish { ambient 0 diffuse 0.8 specular 0.9 roughness 0.004 }
        translate <X, Floor, 7>
    }
#end
Jar(-33, 35.5, 3.6, 25, <0.03, 0.12, 0.10>)
Jar(-25, 35.5, 3.0, 19, <0.32, 0.10, 0.03>)
Jar(-19, 35.5, 2.3, 23, <0.04, 0.06, 0.17>)
Jar(26.5, 35.5, 3.3, 22, <0.20, 0.12, 0.04>)
Jar(-22, 71.5, 4.0, 20, <0.08, 0.10, 0.14>)

// a plant that hangs over the right of the shelf
#declare PlantRandom = seed(77);
#declare K = 0;
#while (K < 110)
    #declare Swing = rand(PlantRandom) * 360;
    #declare Length = 5 + 4 * rand(PlantRandom);
    sphere { 0, 1
        scale <Length * 0.36, Length, 0.25>
        translate y * Length
        rotate z * (rand(PlantRandom) * 150 - 75)
        rotate y * (rand(PlantRandom) * 60 - 30)
        translate <36 + 9 * (rand(PlantRandom) - 0.5) , 43 + 17 * rand(PlantRandom), -1 + 6 * rand(PlantRandom)>
        pigment { rgb <0.075, 0.17, 0.045> * (0.55 + 0.9 * rand(PlantRandom)) + <0.03, 0.02, 0> * rand(PlantRandom) }
        finish { ambient 0 diffuse 0.8 specular 0.35 roughness 0.02 }
    }
    #declare K = K + 1;
#end
Jar(36, 35.5, 5.0, 10, <0.30, 0.13, 0.07>)

// a string of little lamps: the discs of light out of focus
#declare LampRandom = seed(9);
#declare K = 0;
#while (K < 26)
    #declare X = -58 + 4.7 * K + 2.4 * rand(LampRandom);
    sphere { <X, 66.0 - 5 * abs(sin(X * 0.09)) + 4.5 * rand(LampRandom), -3>, 0.7
        pigment { rgb 1 } finish { ambient 0 diffuse 0 emission <1.0, 0.58, 0.22> * (2.6 + 3.4 * rand(LampRandom)) } no_shadow }
    #declare K = K + 1;
#end

// daylight from a window at the left, seen as its curtain's edge
box { <-80, 10, -12>, <-41, 120, -11>
    pigment { gradient x color_map { [0 rgb 1] [1 rgb 0.7] } scale 4 }
    finish { ambient 0 diffuse 0 emission <0.80, 0.86, 0.95> * 0.8 } no_shadow }
light_source { <-130, 110, -90>, rgb <0.95, 1.0, 1.05> * 1.25 area_light <30, 0, 0>, <0, 40, 0>, 4, 4 adaptive 1 jitter }
light_source { <60, 160, -260>, rgb <1.0, 0.84, 0.66> * 0.42 area_light <60, 0, 0>, <0, 60, 0>, 3, 3 adaptive 1 jitter }
light_source { <0, 45, -400>, rgb <0.9, 0.9, 1.0> * 0.10 shadowless }

camera { location <0, 45, -400> look_at <0, 45, 0> right x * 4 / 3 up y angle 2 * degrees(atan2(60, 400)) }

#else

camera {
    location Eye
    look_at Aim
    right x * 4 / 3
    up y
    angle 2 * degrees(atan2(FrameWidth / 2, Distance))
#if (Stage = 1 & Lens)
    focal_point <0, 3, -2.2>
    aperture 5.0
    blur_samples 7, Samples
    confidence 0.9
    variance 1 / 1500
#end
}

#end
