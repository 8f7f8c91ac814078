VARYING vec2 fragTexCoord;
uniform sampler2D tex0;
uniform sampler2D tex1;
uniform sampler2D tex2;
uniform sampler2D tex3;
uniform vec2 pixelSize;
uniform int taps;

// PLANES and WEIGHTED are known when this is built: a software renderer takes every way through a condition.
vec4 texelAt(vec2 place)
{
#if PLANES == 1
    return TEXTURE(tex0, place);
#else
    vec4 planes =
        vec4(TEXTURE(tex0, place).r, TEXTURE(tex1, place).r, TEXTURE(tex2, place).r, 1.0);
#if PLANES == 4
    planes.a = TEXTURE(tex3, place).r;
#endif
    return planes;
#endif
}

// The mean of the texels that a pixel covers. One that is not finite makes its pixel so, and no other.
void main()
{
    vec2 step = pixelSize / float(taps);
    vec2 place = fragTexCoord - 0.5 * (pixelSize - step);
    vec4 sum = vec4(0.0);
    float covered = 0.0;
    for (int y = 0; y < taps; ++y) {
        for (int x = 0; x < taps; ++x) {
            vec4 texel = texelAt(place + step * vec2(x, y));
#if defined(WEIGHTED)
            // A transparent texel has no colour to give.
            texel.rgb *= abs(texel.a);
            covered += abs(texel.a);
#endif
            sum += texel;
        }
    }
    float count = float(taps * taps);
#if defined(WEIGHTED)
    fragColor = vec4(covered > 0.0 ? sum.rgb / covered : vec3(0.0), sum.a / count);
#else
    fragColor = sum / count;
#endif
}
