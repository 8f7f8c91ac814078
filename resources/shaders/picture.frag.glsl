VARYING vec2 fragTexCoord;
uniform sampler2D tex0;
uniform sampler2D tex1;
uniform sampler2D tex2;
uniform sampler2D tex3;
uniform int numOfTextures;
uniform int redChannelOnly;
uniform int isYCbCr;
uniform int skipAlpha;
uniform int premultiplied;
uniform int channelViewMode;
uniform float gamma;
uniform float sourceGamma;
uniform float brightness;
uniform float saturation;
uniform float contrast;
uniform float levelInputMin;
uniform float levelInputMax;
uniform float levelOutputMin;
uniform float levelOutputMax;
uniform float softClip;

float brightnessContrast(float value)
{
    return (value - 0.5) * contrast + 0.5 + brightness;
}

float knee(float value, float f)
{
    return log(value * f + 1.0) / f;
}

// Far beyond white, and far from where arithmetic overflows.
const float kMost = 1.0e18;

// Infinity is the brightest there is, and what is no number is black: arithmetic would spread both.
float finite(float value)
{
    return value > 0.0 ? min(value, kMost) : value < 0.0 ? max(value, -kMost) : 0.0;
}

vec4 finite(vec4 texel)
{
    return vec4(finite(texel.r), finite(texel.g), finite(texel.b), abs(texel.a) <= kMost ? texel.a : 1.0);
}

vec4 texelAt(vec2 place)
{
    if (numOfTextures == 1) {
        vec4 whole = TEXTURE(tex0, place);
        return redChannelOnly == 1 ? vec4(whole.rrr, 1.0) : whole;
    }
    if (numOfTextures != 3 && numOfTextures != 4)
        return vec4(0.0);
    vec4 planes =
        vec4(TEXTURE(tex0, place).r, TEXTURE(tex1, place).r, TEXTURE(tex2, place).r, 1.0);
    if (numOfTextures == 4)
        planes.a = TEXTURE(tex3, place).r;
    return planes;
}

#if defined(MAGNIFIED)
uniform vec2 frameSize;

// A transparent texel has no colour to give to its neighbours.
float coverage(float alpha)
{
    return premultiplied == 1 || skipAlpha == 1 ? 1.0 : abs(alpha);
}

// Sums the colours of texels by their coverage, the coverage, and the alphas.
struct Sum {
    vec3 rgb;
    float covered;
    float alpha;
    float weight;
};

void add(inout Sum sum, vec4 texel, float weight)
{
    float covered = weight * coverage(texel.a);
    sum.rgb += texel.rgb * covered;
    sum.covered += covered;
    sum.alpha += texel.a * weight;
    sum.weight += weight;
}

vec4 averageOf(Sum sum)
{
    return vec4(sum.covered > 0.0 ? sum.rgb / sum.covered : vec3(0.0), sum.alpha / sum.weight);
}
bool isFinite(vec4 texel)
{
    return abs(texel.r) + abs(texel.g) + abs(texel.b) + abs(texel.a) <= kMost;
}

// Linear between the four texels around; one that is not finite has its own square to itself.
vec4 texel()
{
    vec2 place = fragTexCoord * frameSize - 0.5;
    vec2 first = floor(place);
    vec2 second = place - first;
    vec4 low = (first.xyxy + vec4(0.5, 0.5, 1.5, 1.5)) / frameSize.xyxy;
    vec4 texels[4];
    texels[0] = texelAt(low.xy);
    texels[1] = texelAt(low.zy);
    texels[2] = texelAt(low.xw);
    texels[3] = texelAt(low.zw);
    vec4 weights = vec4(1.0 - second.x, second.x, 1.0 - second.x, second.x)
        * vec4(1.0 - second.y, 1.0 - second.y, second.y, second.y);
    vec4 nearest = second.y < 0.5 ? (second.x < 0.5 ? texels[0] : texels[1])
                                  : (second.x < 0.5 ? texels[2] : texels[3]);
    Sum sum = Sum(vec3(0.0), 0.0, 0.0, 0.0);
    add(sum, finite(texels[0]), isFinite(texels[0]) ? weights.x : 0.0);
    add(sum, finite(texels[1]), isFinite(texels[1]) ? weights.y : 0.0);
    add(sum, finite(texels[2]), isFinite(texels[2]) ? weights.z : 0.0);
    add(sum, finite(texels[3]), isFinite(texels[3]) ? weights.w : 0.0);
    return isFinite(nearest) ? averageOf(sum) : finite(nearest);
}
#else
vec4 texel()
{
    return finite(texelAt(fragTexCoord));
}
#endif

// The row vector times the matrix: each output channel is the product with a column.
vec3 fromYCbCr(vec3 rgb)
{
    const mat4 columns = mat4(1.0000, 1.0000, 1.0000, 0.0000,
                              0.0000, -0.3441, 1.7720, 0.0000,
                              1.4020, -0.7141, 0.0000, 0.0000,
                              -0.7010, 0.5291, -0.8860, 1.0000);
    return (vec4(rgb, 1.0) * columns).rgb;
}

// What is below black has no power and stays.
float power(float value, float exponent)
{
    return value >= 0.0 ? min(pow(value, exponent), kMost) : value;
}

vec3 power(vec3 rgb, float exponent)
{
    return vec3(power(rgb.r, exponent), power(rgb.g, exponent), power(rgb.b, exponent));
}

vec3 saturated(vec3 rgb)
{
    float intensity = dot(rgb, vec3(0.2125, 0.7154, 0.0721));
    return mix(vec3(intensity), rgb, saturation);
}

// Divisor and factor are the maxima themselves, not the ranges.
vec3 levelled(vec3 rgb)
{
    return (rgb - levelInputMin) / levelInputMax * levelOutputMax + levelOutputMin;
}

float softClipped(float value)
{
    float k = 1.0 - softClip;
    return value > k ? k + (1.0 - exp(-(value - k) / softClip)) * softClip : value;
}

vec4 channelView(vec4 colour)
{
    if (channelViewMode == 0)
        return colour;
    if (channelViewMode == 1)
        return colour.rrra;
    if (channelViewMode == 2)
        return colour.ggga;
    if (channelViewMode == 3)
        return colour.bbba;
    if (channelViewMode == 4)
        return colour.aaaa;
    if (channelViewMode == 5)
        return vec4(vec3(max(colour.r, max(colour.g, colour.b))), colour.a);
    return vec4(0.0);
}

void main()
{
    vec4 colour = texel();
    if (isYCbCr == 1)
        colour.rgb = fromYCbCr(colour.rgb);
    if (skipAlpha == 1 && channelViewMode != 4)
        colour.a = 1.0;
    if (premultiplied == 1 && colour.a != 0.0)
        colour.rgb /= colour.a;
    // Beyond what halves hold, and infinite, a sample would spoil the other channels by the intensity.
    colour.rgb = clamp(colour.rgb, -65504.0, 65504.0);
    if (isYCbCr == 0)
        colour.rgb = power(colour.rgb, 1.0 / sourceGamma);
    colour.rgb = power(colour.rgb, gamma);
    colour.rgb = (colour.rgb - 0.5) * max(contrast, 0.0) + 0.5;
    colour.rgb += brightness - 1.0;
    colour.rgb = saturated(colour.rgb);
    colour.rgb = levelled(colour.rgb);
    colour.rgb = vec3(softClipped(colour.r), softClipped(colour.g), softClipped(colour.b));
    colour.rgb *= colour.a;
    fragColor = channelView(colour);
}
