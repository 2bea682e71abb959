import assert from 'node:assert/strict';
import { afterEach, test } from 'node:test';
import { describeWith } from './counterparts.mjs';
import { applyAccount, openMeetings, tokenRequest } from './preferences.mjs';
import { pause, Session } from './processes.mjs';
import { startMockProvider } from './providers.mjs';

const user = 'johndoe';

await describeWith(['oauth2-mock-server'], () => {
  let session;
  let provider;
  afterEach(async () => {
    await session.end();
    await provider.stop();
  });

  test('sign-in, restart of the provider, refresh; the provider is away: try later', async () => {
    const shortLived = (response) => (response.body.expires_in = 1);
    provider = await startMockProvider();
    provider.onToken(shortLived);
    session = new Session();
    await openMeetings(session);
    const page = await fetch(await applyAccount(session, provider.authority, { email: user + '@example.com' }));
    assert.equal(page.status, 200);
    const credential = (await session.waitFor('the credential', (line) => line.sent === 27)).content;
    assert.equal(credential.QRT_CredentialUsername, user);

    await provider.stop();
    await pause(1100);
    await session.play(tokenRequest(user));
    const missed = (await session.waitFor('an answer', (line) => line.sent === 29)).content;
    assert.equal(missed.GetTokenFailed, true);
    assert.equal(missed.GetTokenFailedReason, 'TryLater');

    provider = await startMockProvider(provider.port);
    const from = session.printed.length;
    await session.play(tokenRequest(user));
    const answer = (await session.waitFor('an answer', (line) => line.sent === 29, from)).content;
    assert.equal(answer.isTokenExpired, false);
    assert.notEqual(answer.QRT_ListingMeeting_exchOnlineToken, credential.QRT_CredentialContent);
  });
});
